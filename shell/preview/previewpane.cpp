// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/preview/previewpane.h"

#include "shell/controls/activitybar.h"
#include "shell/controls/busycursor.h"
#include "shell/controls/controls.h"
#include "shell/controls/enterkey.h"
#include "shell/controls/taborder.h"
#include "shell/look/theme.h"
#include "shell/pages/pagepainter.h"
#include "shell/preview/pagestepper.h"
#include "shell/preview/previewcontrols.h"
#include "shell/preview/previewmessages.h"
#include "shell/preview/printjob.h"
#include "shell/preview/sheetview.h"
#include "shell/program/program.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMimeData>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int windowMargin = 16;
constexpr int columnWidth = 208;
constexpr int deskPadding = 14;
constexpr int buttonHeight = 40;
constexpr int leastButtonHeight = 34;
constexpr int looseSpacing = 10;
constexpr int tightSpacing = 4;
constexpr int looseFrom = 560; ///< height of the pane
constexpr int defaultPoints = 11;
constexpr double clipboardDotsPerInch = 150;

/// The zoom button tells its state by its caption: the command that it offers next.
QString enlargeCaption()
{
    return u"Enlarge"_s;
}

/// The caption stands as it is; its access key comes beside it.
void offerZoom(QPushButton &button, bool enlarge)
{
    button.setText(enlarge ? enlargeCaption() : u"Normal"_s);
    button.setShortcut(QKeySequence(enlarge ? Qt::ALT | Qt::Key_G : Qt::ALT | Qt::Key_N));
}

ColumnButton *makeColumnButton(const QString &name, const QString &caption, QLatin1StringView icon,
                               QWidget *parent, ButtonKind kind = ButtonKind::Plain)
{
    auto *button = named(new ColumnButton(caption, parent), name);
    button->setAutoDefault(false);
    letEnterPress(button);
    button->setMinimumHeight(leastButtonHeight);
    button->setMaximumHeight(buttonHeight);
    button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    setButtonKind(button, kind);
    button->setSign(icon);
    return button;
}

} // namespace

PreviewPane::PreviewPane(Program &program, ActivityBar &activity, QWidget *parent)
    : QWidget(parent)
    , m_program(program)
    , m_activity(activity)
    , m_setup(usualSetup(program.state.dateStyle))
    , m_font(usualFont())
    , m_deskPanel(named(new PanelFrame(this), u"previewPanel"_s))
    , m_view(named(new SheetView(m_deskPanel), u"VSPrinter1"_s))
    , m_buttonPanel(named(new PanelFrame(this), u"SSPanel80"_s))
    , m_showButtons(named(new EdgeTab(u"Show &Buttons"_s, this), u"showButtons"_s))
{
    m_view->setAccessibleName(u"Page preview"_s);
    auto *desk = new QHBoxLayout(m_deskPanel);
    desk->setContentsMargins(deskPadding, deskPadding, deskPadding, deskPadding);
    desk->addWidget(m_view);
    makeCommands();
    fillButtonPanel();
    m_showButtons->setIcon(Icons::icon("show-buttons"_L1, Theme::of(this).scheme));
    m_showButtons->setFont(TypeScale::body());
    m_showButtons->hide();
    letEnterPress(m_showButtons);

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(windowMargin, windowMargin, windowMargin, windowMargin);
    row->setSpacing(windowMargin);
    row->addWidget(m_deskPanel, 1);
    row->addWidget(m_buttonPanel);
    row->addWidget(m_showButtons, 0, Qt::AlignTop);
    setFocusProxy(m_commands[Print]);
    connectControls();
    showOrientation();
    showFont();
    showSheet(0);
}

PreviewPane::~PreviewPane() = default;

PageSetup PreviewPane::usualSetup(DateStyle style)
{
    return {style == DateStyle::Usa ? PageMetrics::letter : PageMetrics::a4, PageSetup::Portrait};
}

PageFont PreviewPane::usualFont()
{
    PageFont usual{QApplication::font(), Qt::black};
    usual.font.setPointSize(defaultPoints);
    return usual;
}

std::unique_ptr<QMimeData> PreviewPane::copied(const PagePainter &page, int sheet)
{
    auto data = std::make_unique<QMimeData>();
    data->setImageData(page.image(sheet, clipboardDotsPerInch));
    data->setText(page.text(sheet));
    return data;
}

void PreviewPane::makeCommands()
{
    struct Face {
        QString caption;
        QLatin1StringView icon;
    };
    // The letters of the windows' menus (O, E, V, U, H) stay free.
    const std::array<Face, CommandCount> faces{{{u"&Font"_s, "font"_L1},
                                                {u"&Landscape"_s, "orientation"_L1},
                                                {u"Hide &Buttons"_s, "hide-buttons"_L1},
                                                {u"&Copy Page"_s, "copy"_L1},
                                                {u"&Print"_s, "print"_L1}}};
    for (std::size_t i = 0; i < CommandCount; ++i) {
        m_commands[i] =
            makeColumnButton(u"SSCommand80_"_s + QString::number(i), faces[i].caption, faces[i].icon,
                             m_buttonPanel, i == Print ? ButtonKind::Main : ButtonKind::Plain);
    }
}

void PreviewPane::fillButtonPanel()
{
    m_orientation = named(makeQuietLabel({}, m_buttonPanel), u"Panel3D80"_s);
    m_zoom = makeColumnButton(u"SSCommand1"_s, enlargeCaption(), "zoom-in"_L1, m_buttonPanel);
    offerZoom(*m_zoom, true);
    m_fontSample = named(new FontSample(u"Sample of the page font"_s, m_buttonPanel), u"Panel3d82"_s);
    m_close = makeColumnButton(u"SSCommand2"_s, u"Close Previe&w"_s, "exit"_L1, m_buttonPanel);
    m_steps = new PageStepper({u"previousPage"_s, u"pageNumber"_s, u"nextPage"_s}, m_buttonPanel,
                              PageStepper::Width::OfColumn);

    m_buttonPanel->setFixedWidth(TypeScale::wide(columnWidth));
    // In a low window the column scrolls: it must not keep the window from shrinking.
    auto *content = new QWidget;
    QScrollArea *scroller = makeScrolling(content, u"buttonScroll"_s, m_buttonPanel);
    scroller->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroller->installEventFilter(this);
    auto *frame = new QVBoxLayout(m_buttonPanel);
    frame->setContentsMargins(1, 1, 1, 1);
    frame->addWidget(scroller);

    auto *column = m_column = new QVBoxLayout(content);
    column->setContentsMargins(deskPadding - 1, deskPadding - 1, deskPadding - 1, deskPadding - 1);
    column->setSpacing(looseSpacing);
    column->addWidget(makeHeading(u"Page"_s, m_buttonPanel));
    column->addWidget(m_orientation);
    column->addWidget(m_steps);
    for (const Command command : {Print, ChooseFont, TurnPage, CopyPage})
        column->addWidget(m_commands[command]);
    column->addWidget(m_zoom);
    column->addWidget(m_fontSample);
    column->addStretch(1);
    column->addWidget(m_commands[ToggleButtons]);
    column->addWidget(m_close);
    TabOrder::follow(*column, m_view);
}

void PreviewPane::connectControls()
{
    for (std::size_t i = 0; i < CommandCount; ++i)
        connect(m_commands[i], &QPushButton::clicked, this, [this, i] { run(Command(i)); });
    connect(m_zoom, &QPushButton::clicked, this, &PreviewPane::toggleZoom);
    connect(m_close, &QPushButton::clicked, this, &PreviewPane::closed);
    connect(m_showButtons, &QPushButton::clicked, this, [this] { run(ToggleButtons); });
    connect(m_steps, &PageStepper::pageRequested, this, &PreviewPane::showSheet);
    m_steps->listenTo(m_view);
}

void PreviewPane::show(Builder builder, const QString &jobName, Lie lie)
{
    m_lay = [this, build = std::move(builder)](const PageSetup &setup) {
        return PagePainter(build(setup), setup, m_font);
    };
    start(jobName, lie);
}

void PreviewPane::showSheets(SheetsBuilder builder, const QString &jobName)
{
    m_lay = [this, build = std::move(builder)](const PageSetup &setup) {
        return PagePainter(build(setup), setup, m_font);
    };
    start(jobName, Lie::AsTurned);
}

void PreviewPane::start(const QString &jobName, Lie lie)
{
    m_jobName = jobName;
    m_lie = lie;
    m_setup.orientation = m_own ? *m_own : lie == Lie::Landscape ? PageSetup::Landscape : m_turned;
    showOrientation();
    m_steps->setPage(0, 1);
    rebuild();
    // Numbers that an upright sheet has no room for are seen whole on one that lies on its side.
    if (!m_own && m_painter && m_painter->isTableCut() && m_setup.orientation == PageSetup::Portrait) {
        m_lie = Lie::Landscape;
        m_setup.orientation = PageSetup::Landscape;
        showOrientation();
        rebuild();
    }
}

void PreviewPane::rebuild()
{
    if (m_isBuilding)
        return; // asked for while messages run: the build that follows them takes the newest content anyway
    m_isBuilding = true;
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    {
        const BusyCursor busy;
        auto painter = std::make_shared<PagePainter>(paginated(m_setup));
        m_view->setSheet(nullptr, 0);
        m_painter = std::move(painter);
    }
    m_isBuilding = false;
    showSheet(currentSheet());
}

PagePainter PreviewPane::paginated(const PageSetup &setup) const
{
    return m_lay ? m_lay(setup) : PagePainter(Page(), setup, m_font);
}

bool PreviewPane::print()
{
    if (!m_painter || m_isBuilding || (m_discretion.mayPrint && !m_discretion.mayPrint()))
        return false;
    PrintJob job(m_program, m_activity, window(), m_jobName);
    job.setMayWriteFile(m_discretion.mayWriteFile);
    // A window that locks itself meanwhile takes the page away.
    const std::shared_ptr<PagePainter> painter = m_painter;
    job.setMayGoOn([this, painter] { return m_painter == painter; });
    const bool isPrinted = job.run(*painter, m_setup, currentSheet(),
                                   [this](const PageSetup &setup) { return paginated(setup); });
    if (isPrinted && m_discretion.printed)
        m_discretion.printed();
    return isPrinted;
}

void PreviewPane::setDiscretion(Discretion discretion)
{
    m_discretion = std::move(discretion);
}

void PreviewPane::setOwnOrientation(PageSetup::Orientation orientation,
                                    std::function<void(PageSetup::Orientation)> turned)
{
    m_own = orientation;
    m_ownTurned = std::move(turned);
}

void PreviewPane::setOwnFont(const PageFont &font, std::function<void(const PageFont &)> chosen)
{
    m_font = font;
    m_fontChosen = std::move(chosen);
    showFont();
}

void PreviewPane::addChoice(QWidget *choice)
{
    m_column->insertWidget(m_column->indexOf(m_steps) + 1, choice);
}

void PreviewPane::setDeskColor(const QColor &color)
{
    m_view->setDeskColor(color);
}

QList<QWidget *> PreviewPane::panels() const
{
    return {m_deskPanel, m_buttonPanel};
}

int PreviewPane::currentSheet() const
{
    return m_steps->page();
}

int PreviewPane::sheetCount() const
{
    return m_painter ? m_painter->sheetCount() : 1;
}

void PreviewPane::run(Command command)
{
    switch (command) {
    case ChooseFont:
        return chooseFont();
    case TurnPage:
        return turnPage();
    case ToggleButtons:
        return toggleButtons();
    case CopyPage:
        return copyPage();
    case Print:
        print();
        return;
    case CommandCount:
        return;
    }
}

void PreviewPane::chooseFont()
{
    const auto font = m_program.dialogs.chooseFont(this, m_font);
    if (!font)
        return;
    m_font = *font;
    if (m_fontChosen)
        m_fontChosen(m_font);
    showFont();
    rebuild();
}

void PreviewPane::turnPage()
{
    const bool wasPortrait = m_setup.orientation == PageSetup::Portrait;
    m_setup.orientation = wasPortrait ? PageSetup::Landscape : PageSetup::Portrait;
    if (m_own)
        m_own = m_setup.orientation;
    else if (m_lie == Lie::AsTurned)
        m_turned = m_setup.orientation;
    if (m_ownTurned)
        m_ownTurned(m_setup.orientation);
    showOrientation();
    rebuild();
}

void PreviewPane::toggleButtons()
{
    const bool shown = m_buttonPanel->isHidden();
    m_buttonPanel->setVisible(shown);
    m_showButtons->setVisible(!shown);
    // The focus goes with the button that was pressed, never to a hidden one.
    QPushButton *button = shown ? m_commands[ToggleButtons] : m_showButtons;
    setFocusProxy(shown ? m_commands[Print] : m_showButtons);
    button->setFocus();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void PreviewPane::copyPage()
{
    const PagePainter empty{Page(), m_setup, m_font};
    const PagePainter &page = m_painter ? *m_painter : empty;
    std::unique_ptr<QMimeData> data = copied(page, currentSheet());
    if (m_discretion.copy)
        m_discretion.copy(std::move(data));
    else
        QApplication::clipboard()->setMimeData(data.release());
    m_program.dialogs.ask(this, PreviewMessages::pageCopied());
}

void PreviewPane::toggleZoom()
{
    const bool enlarge = m_zoom->text() == enlargeCaption();
    offerZoom(*m_zoom, !enlarge);
    m_zoom->setSign(enlarge ? "zoom-out"_L1 : "zoom-in"_L1);
    m_view->setZoom(enlarge ? SheetView::Zoom::Enlarged : SheetView::Zoom::Whole);
}

void PreviewPane::showSheet(int sheet, SheetView::Edge edge)
{
    const int shown = std::clamp(sheet, 0, sheetCount() - 1);
    m_view->setSheet(m_painter.get(), shown, edge);
    m_steps->setPage(shown, sheetCount());
}

void PreviewPane::showOrientation()
{
    const bool isPortrait = m_setup.orientation == PageSetup::Portrait;
    m_orientation->setText(isPortrait ? u" Portrait"_s : u" Landscape"_s);
    m_commands[TurnPage]->setText(isPortrait ? u"&Landscape"_s : u"Po&rtrait"_s);
}

void PreviewPane::showFont()
{
    QPalette colors = m_fontSample->palette();
    colors.setColor(QPalette::WindowText, m_font.color);
    m_fontSample->setPalette(colors);
    m_fontSample->setFont(m_font.font);
}

void PreviewPane::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_column->setSpacing(height() >= looseFrom ? looseSpacing : tightSpacing);
}

/// The column of buttons would take the keys that turn the pages for its own scrolling.
bool PreviewPane::eventFilter(QObject *watched, QEvent *event)
{
    const int key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent *>(event)->key() : 0;
    if (key != Qt::Key_PageUp && key != Qt::Key_PageDown)
        return QWidget::eventFilter(watched, event);
    return m_view->handleKey(key);
}

void PreviewPane::keyPressEvent(QKeyEvent *event)
{
    // The buttons leave these keys alone: they turn the pages wherever the focus is.
    switch (event->key()) {
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
        m_view->handleKey(event->key());
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}
