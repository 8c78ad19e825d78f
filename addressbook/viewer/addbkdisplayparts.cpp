// How the viewer is put together.

#include "addressbook/model/viewermessages.h"
#include "addressbook/shared/serialmodem.h"
#include "addressbook/viewer/addressgrid.h"
#include "addressbook/viewer/gridpane.h"
#include "addressbook/viewer/labelpanel.h"
#include "addressbook/viewer/listoptionspanel.h"
#include "addressbook/viewer/pictureswindow.h"
#include "addressbook/viewer/viewerchoices.h"
#include "addressbook/viewer/viewerwindow.h"
#include "shell/controls/activitybar.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/controls.h"
#include "shell/core/framelines.h"
#include "shell/core/helpcontexts.h"
#include "shell/core/settingskeys.h"
#include "shell/look/theme.h"
#include "shell/pictures/picturecopies.h"

#include <QDesktopServices>
#include <QMenu>
#include <QMenuBar>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedWidget>
#include <QStyle>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int leftPaneWidth = 272;
constexpr int narrowLeftPaneWidth = 236;
/// Windows narrower than this have the narrow left pane.
constexpr int wideFrom = 1200;
WindowTraits traits()
{
    WindowTraits traits;
    traits.name = u"ADDBKDISPLAY"_s;
    traits.caption = ViewerMessages::viewerTitle();
    traits.activity = u"Data Viewer"_s;
    traits.colors = {SettingsKeys::addressViewerColor, SettingsKeys::addressViewerProgramColor, {}};
    traits.helpContext = HelpContext::AddressViewer;
    return traits;
}

} // namespace

ADDBKDISPLAY::ADDBKDISPLAY(Program &program, QWidget *parent, Surroundings surroundings)
    : FunctionWindow(program, traits(), parent)
    , m_surroundings(std::move(surroundings))
    , m_copies(new PictureCopies(program.folder, this))
{
    if (!m_surroundings.makeModem)
        m_surroundings.makeModem = [] { return std::make_unique<SerialModem>(); };
    if (!m_surroundings.openAddress)
        m_surroundings.openAddress = &QDesktopServices::openUrl;
    m_splitter = named(new QSplitter(Qt::Horizontal), u"leftPaneSplitter"_s);
    m_splitter->addWidget(makeLeftPane());
    m_splitter->addWidget(makeWorkPanel());
    m_splitter->setStretchFactor(1, 1);
    setWork(m_splitter);
    m_dialler = std::make_unique<Dialler>(program, this, m_dialing, m_surroundings.makeModem);
    makeMenus();
    makeToolbar();
    connectParts();
    setTabOrders();
    m_splitter->setSizes({leftPaneWidth, 1000});
    rememberSplitter(m_splitter);
    finishFrame();
    placeSplitter();
    m_grid->load(m_choices->information(), {});
    m_grid->setFocus();
}

ADDBKDISPLAY::~ADDBKDISPLAY()
{
    // The pictures belong to the viewer: without it nothing leads back to them.
    delete m_pictures;
}

QWidget *ADDBKDISPLAY::makeLeftPane()
{
    m_choices = named(new ViewerChoices, u"choices"_s);
    QScrollArea *scroll = makeScrolling(m_choices, u"choicesScroll"_s, this);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    return scroll;
}

QWidget *ADDBKDISPLAY::makeWorkPanel()
{
    QWidget *panel = makePanel(u"Panel3D1"_s);
    auto *layout = new QVBoxLayout(panel);
    layout->setContentsMargins(1, 1, 1, 1);
    m_pages = new QStackedWidget(panel);
    layout->addWidget(m_pages);
    m_gridPage = makeGridPage();
    m_listOptions = named(new ListOptionsPanel, u"listOptions"_s);
    m_labels = named(new LabelPanel(program(), activity()), u"labels"_s);
    for (QWidget *page : std::initializer_list<QWidget *>{m_gridPage, m_listOptions, m_labels})
        m_pages->addWidget(page);
    return panel;
}

QWidget *ADDBKDISPLAY::makeGridPage()
{
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(24, 16, 24, 18);
    layout->setSpacing(10);
    m_title = named(new ElidedLabel(page), u"Panel3D2"_s);
    m_title->setText(ViewerMessages::viewerTitle());
    m_title->setFont(TypeScale::windowTitle());
    m_title->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    m_chip = makeChip(u"informationChip"_s, {}, page);
    m_dialing = named(new QLabel(u"Dialing..."_s, page), u"Label3"_s);
    m_dialing->setFont(TypeScale::strong());
    m_dialing->hide();
    auto *head = new QHBoxLayout;
    head->setSpacing(16);
    head->addWidget(m_title);
    head->addWidget(m_chip);
    head->addStretch(1);
    head->addWidget(m_dialing);

    layout->addLayout(head);
    m_grid = new GridPane(program(), page);
    layout->addWidget(m_grid, 1);
    layout->addWidget(makeLine(page));
    layout->addWidget(makeButtonRow(page));
    return page;
}

QWidget *ADDBKDISPLAY::makeButtonRow(QWidget *parent)
{
    m_buttonRow = new ButtonRow(parent);
    const auto make = [this](QPushButton *button, void (ADDBKDISPLAY::*command)()) {
        connect(button, &QPushButton::clicked, this, command);
        return button;
    };
    m_removeButton =
        make(makeButton(u"removeRow"_s, u"&Delete Row"_s, m_buttonRow), &ADDBKDISPLAY::removeRow);
    m_dialButton =
        make(makeIconButton(u"Image2"_s, "dial"_L1, u"Dial Phone Number using computer modem"_s, m_buttonRow),
             &ADDBKDISPLAY::dial);
    m_mailButton =
        make(makeButton(u"writeMail"_s, u"&Write E-mail"_s, m_buttonRow), &ADDBKDISPLAY::writeMail);
    m_openButton = make(makeButton(u"openEntry"_s, u"Ope&n Entry"_s, m_buttonRow, ButtonKind::Main),
                        &ADDBKDISPLAY::openEntry);
    QPushButton *exit = makeButton(u"exitViewer"_s, u"E&xit"_s, m_buttonRow);
    connect(exit, &QPushButton::clicked, this, &QWidget::close);
    for (QPushButton *button : {m_removeButton, m_dialButton, m_mailButton})
        m_buttonRow->addLeft(button);
    for (QPushButton *button : {m_openButton, exit})
        m_buttonRow->addRight(button);
    return m_buttonRow;
}

void ADDBKDISPLAY::makeMenus()
{
    makeOptionsMenu();
    QMenu *edit = addMenu(u"mE"_s, u"&Edit"_s);
    m_editCopyAction = addCommand(edit, u"mECopy"_s, u"&Copy"_s, &ADDBKDISPLAY::copyRows);
    m_editRemoveAction = addCommand(edit, u"mEDel"_s, u"&Delete Row"_s, &ADDBKDISPLAY::removeRow);
    QMenu *utilities = addMenu(u"mU"_s, u"&Utilities"_s);
    m_backupAction = addCommand(utilities, u"mUB"_s, u"&Backup Files to Disk"_s, &ADDBKDISPLAY::openBackup);
    m_restoreAction =
        addCommand(utilities, u"mUR"_s, u"&Restore Files from Disk"_s, &ADDBKDISPLAY::openBackup);
    m_helpAction = addCommand(nullptr, u"mH"_s, u"&Help"_s, &ADDBKDISPLAY::showHelp);
    menuBar()->addAction(m_helpAction);
    const QString noBackup =
        program().functions.has(Function::Backup) ? QString() : FrameLines::backupNotThere();
    setUnavailable(m_backupAction, noBackup);
    setUnavailable(m_restoreAction, noBackup);
}

void ADDBKDISPLAY::makeOptionsMenu()
{
    QMenu *menu = addMenu(u"mO"_s, u"&Options"_s);
    m_panelColorAction = addCommand(menu, u"mOC"_s, u"Panel C&olor"_s, &ADDBKDISPLAY::choosePanelColor);
    m_modeAction = addCommand(menu, u"mOM"_s, {}, &ADDBKDISPLAY::switchDisplayMode);
    m_openAction = addCommand(menu, u"mOEntry"_s, u"Ope&n Entry"_s, &ADDBKDISPLAY::openEntry);
    menu->addSeparator();
    m_copyAction = addCommand(menu, u"mOCopy"_s, u"Cop&y"_s, &ADDBKDISPLAY::copyRows);
    m_exportAction = addCommand(menu, u"mOExp"_s, u"Expor&t"_s, &ADDBKDISPLAY::exportRows);
    m_removeAction = addCommand(menu, u"mODel"_s, u"&Delete Row"_s, &ADDBKDISPLAY::removeRow);
    addSortMenu(*menu);
    menu->addSeparator();
    m_printAction = addCommand(menu, u"mOPrt"_s, u"&Print Options"_s, &ADDBKDISPLAY::showPrintOptions);
    m_labelsAction = addCommand(menu, u"mOLab"_s, u"&Labels and Envelopes"_s, &ADDBKDISPLAY::showLabels);
    m_picturesAction =
        addCommand(menu, u"mOPic"_s, u"P&ictures Display Screen"_s, &ADDBKDISPLAY::showPictures);
    menu->addSeparator();
    QAction *exit = makeAction(u"mOEx"_s, u"E&xit"_s, this);
    connect(exit, &QAction::triggered, this, &QWidget::close);
    menu->addAction(exit);
}

/// What a click on a heading does, for the keyboard.
void ADDBKDISPLAY::addSortMenu(QMenu &options)
{
    QMenu *menu = named(options.addMenu(u"So&rt"_s), u"mOSort"_s);
    menu->setToolTipsVisible(true);
    const auto add = [this, menu](const QString &name, const QString &caption, int column) {
        QAction *action = makeAction(name, caption, this);
        connect(action, &QAction::triggered, this, [this, column] { sortBy(column); });
        menu->addAction(action);
        return action;
    };
    add(u"mOSName"_s, u"By &Name"_s, AddressGrid::NameColumn);
    m_sortInformationAction = add(u"mOSInfo"_s, u"By &Information"_s, AddressGrid::InformationColumn);
    add(u"mOSRec"_s, u"&Record Order"_s, -1);
}

void ADDBKDISPLAY::makeToolbar()
{
    addTool(m_copyAction, "copy"_L1, u"Copy"_s);
    addTool(m_exportAction, "export"_L1, u"Export"_s);
    addTool(m_printAction, "print"_L1, u"Print"_s);
    addTool(m_labelsAction, "label"_L1, u"Labels"_s);
    addToolSeparator();
    addTool(m_picturesAction, "picture"_L1, u"Pictures"_s);
    addToolSeparator();
    addTool(m_panelColorAction, "palette"_L1, u"Panel Color"_s);
    addTool(m_backupAction, "backup-command"_L1, u"Backup"_s);
    addTool(addCommand(nullptr, u"toolHelp"_s, u"Help"_s, &ADDBKDISPLAY::showHelp), "help"_L1, u"Help"_s);
}

void ADDBKDISPLAY::connectParts()
{
    connect(m_choices, &ViewerChoices::searchTyped, m_grid, &GridPane::search);
    connect(m_choices, &ViewerChoices::searchPressed, this, &ADDBKDISPLAY::search);
    connect(m_choices, &ViewerChoices::informationChosen, this, &ADDBKDISPLAY::chooseInformation);
    connect(m_choices, &ViewerChoices::updateRequested, this, &ADDBKDISPLAY::updateDisplay);
    connect(m_choices, &ViewerChoices::leftForNames, m_grid, [this] {
        showGrid();
        m_grid->setFocus();
    });
    connect(m_grid, &GridPane::modeRequested, this, &ADDBKDISPLAY::switchDisplayMode);
    connect(m_grid, &GridPane::modeChanged, m_modeAction, &QAction::setText);
    connect(m_grid, &GridPane::rowsChanged, this, &ADDBKDISPLAY::refresh);
    connect(m_grid, &GridPane::currentChanged, this, &ADDBKDISPLAY::refreshCommands);
    connect(m_grid, &GridPane::removalRequested, this, &ADDBKDISPLAY::removeRow);
    connect(m_grid, &GridPane::linkFollowed, this, &ADDBKDISPLAY::openMail);
    connect(m_grid, &GridPane::opened, this, &ADDBKDISPLAY::openEntry);
    connect(m_grid, &GridPane::resized, this, &ADDBKDISPLAY::refreshHead);
    connect(m_listOptions, &ListOptionsPanel::printRequested, this, &ADDBKDISPLAY::printList);
    connect(m_listOptions, &ListOptionsPanel::left, this, &ADDBKDISPLAY::leavePanel);
    connect(m_labels, &LabelPanel::left, this, &ADDBKDISPLAY::leavePanel);
    connect(m_copies, &PictureCopies::progressed, this,
            [this](int done, int total) { activity().showProgress(done, total, true); });
    connect(m_copies, &PictureCopies::ready, this, &ADDBKDISPLAY::showPictureList);
    connect(&activity(), &ActivityBar::stopRequested, this, &ADDBKDISPLAY::stop);
}

void ADDBKDISPLAY::setTabOrders()
{
    QVector<QWidget *> order = m_choices->tabOrder();
    order += m_grid->tabOrder();
    order += {m_removeButton, m_dialButton, m_mailButton, m_openButton};
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
}

/// Until the user moves it, the left pane is as wide as suits the window, and no choice in it is cut.
void ADDBKDISPLAY::placeSplitter()
{
    if (!m_splitter)
        return;
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const int needed = m_choices->minimumSizeHint().width() + bar;
    m_splitter->widget(0)->setMinimumWidth(needed);
    if (isPlaced(m_splitter))
        return;
    const int left = std::max(needed, width() < wideFrom ? narrowLeftPaneWidth : leftPaneWidth);
    m_splitter->setSizes({left, std::max(1, m_splitter->width() - left - m_splitter->handleWidth())});
}
