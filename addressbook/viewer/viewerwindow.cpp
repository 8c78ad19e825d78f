// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/viewer/viewerwindow.h"

#include "addressbook/entry/entrywindow.h"
#include "addressbook/model/messages.h"
#include "addressbook/model/viewerlines.h"
#include "addressbook/model/viewermessages.h"
#include "addressbook/model/viewerpages.h"
#include "addressbook/shared/labelpanel.h"
#include "addressbook/viewer/gridpane.h"
#include "addressbook/viewer/listoptionspanel.h"
#include "addressbook/viewer/pictureprint.h"
#include "addressbook/viewer/pictureswindow.h"
#include "addressbook/viewer/rowremoval.h"
#include "addressbook/viewer/viewerchoices.h"
#include "shell/access/gate.h"
#include "shell/controls/activitybar.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/titleline.h"
#include "shell/core/area.h"
#include "shell/core/framelines.h"
#include "shell/core/helpcontexts.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/sidesplitter.h"
#include "shell/frame/undostack.h"
#include "shell/frame/workviews.h"
#include "shell/look/theme.h"
#include "shell/program/locking.h"
#include "storage/saving.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QMenu>
#include <QScrollArea>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

WindowTraits traits()
{
    return {u"ADDBKDISPLAY"_s,
            ViewerMessages::viewerTitle(),
            u"Data Viewer"_s,
            {SettingsKeys::addressViewerColor, SettingsKeys::addressViewerProgramColor, {}},
            HelpContext::AddressViewer};
}

} // namespace

ADDBKDISPLAY::ADDBKDISPLAY(Program &program, QWidget *parent, Surroundings surroundings)
    : FunctionWindow(program, traits(), parent)
    , m_surroundings(std::move(surroundings))
    , m_pictureList(new PicturePrint(program, activity(), this))
{
    m_choices = named(new ViewerChoices, u"choices"_s);
    QScrollArea *side = makeScrolling(m_choices, u"choicesScroll"_s, this);
    side->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWork(new SideSplitter(u"leftPaneSplitter"_s, side, makeWorkPanel(), [this, side](QSize window) {
        side->setMinimumWidth(m_choices->leastWidth()); // wherever the handle stands
        return m_choices->suitableWidth(window);
    }));
    makeCommands();
    connectParts();
    finishFrame();
    showRange({});
    watchFiles(AddressBook::fileNames());
    m_grid->setFocus();
}

ADDBKDISPLAY::~ADDBKDISPLAY()
{
    // The pictures belong to the viewer: without it nothing leads back to them.
    delete m_pictures;
}

QWidget *ADDBKDISPLAY::makeWorkPanel()
{
    QWidget *panel = makePanel(u"Panel3D1"_s);
    auto *layout = new QVBoxLayout(panel);
    layout->setContentsMargins(1, 1, 1, 1);
    m_views = new WorkViews(panel);
    layout->addWidget(m_views);
    m_listOptions = new ListOptionsPanel;
    m_labels = new LabelPanel(program(), activity(), u"&Back to the Grid"_s);
    m_views->addHome(makeGridPage());
    m_views->addPanel(m_listOptions);
    m_views->addPanel(m_labels);
    setViews(m_views);
    return panel;
}

QWidget *ADDBKDISPLAY::makeGridPage()
{
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(24, 16, 24, 18);
    layout->setSpacing(10);
    m_title = new TitleLine(u"Panel3D2"_s, ViewerMessages::viewerTitle(), page);
    m_title->addChip(u"informationChip"_s);
    auto *dialing = named(new QLabel(u"Dialing..."_s, page), u"Label3"_s);
    dialing->setFont(TypeScale::strong());
    dialing->hide();
    m_title->addAtRight(dialing);
    m_dialler = std::make_unique<Dialler>(program(), this, dialing, m_surroundings.makeModem);
    m_grid = new GridPane(program(), page);
    page->setFocusProxy(m_grid);
    m_buttons = new ButtonRow(page);
    layout->addWidget(m_title);
    layout->addWidget(m_grid, 1);
    layout->addWidget(makeLine(page));
    layout->addWidget(m_buttons);
    return page;
}

void ADDBKDISPLAY::makeCommands()
{
    QMenu *options = addMenu(u"mO"_s, u"&Options"_s);
    options->addAction(standard(Standard::PanelColor));
    QAction *mode = commands().add(options, u"mOM"_s, {}, [this] { switchDisplayMode(); });
    connect(m_grid, &GridPane::modeChanged, mode, &QAction::setText);
    addRowCommands(*options);
    options->addSeparator();
    addPrintCommands(*options);
    options->addSeparator();
    options->addAction(standard(Standard::Exit));
    addUtilitiesMenu();
    addHelpEntry();
    for (const Standard tool : {Standard::PanelColor, Standard::Backup, Standard::Help})
        addStandardTool(tool);
}

void ADDBKDISPLAY::addRowCommands(QMenu &options)
{
    Commands &all = commands();
    const auto noRows = [this] { return m_grid->whyNoRows(); };
    QAction *open = all.add(
        &options, u"mOEntry"_s, u"Ope&n Entry"_s, [this] { openEntry(); },
        [this] { return m_grid->whyNoEntry(); });
    options.addSeparator();
    QAction *copy = all.add(
        &options, u"mOCopy"_s, u"Cop&y"_s, [this] { copyRows(); }, noRows);
    QAction *out = all.writing(all.add(
        &options, u"mOExp"_s, u"Expor&t"_s, [this] { exportRows(); }, noRows));
    QAction *remove = all.add(
        &options, u"mODel"_s, u"&Delete Row"_s, [this] { removeRow(); },
        [this] { return m_grid->whyNoRow(); });
    addSortMenu(options);
    QMenu *edit = addMenu(u"mE"_s, u"&Edit"_s);
    undoStack().addCommands(edit);
    edit->addSeparator();
    all.repeat(copy, edit, u"mECopy"_s, u"&Copy"_s);
    all.repeat(remove, edit, u"mEDel"_s);
    all.setKeyIn(m_grid, remove, CommonKeys::remove);
    const auto find = [this] {
        showGrid();
        m_choices->focusSearch();
    };
    all.add(edit, u"mEFind"_s, u"&Find"_s, find, {}, CommonKeys::search);
    all.tool(copy, "copy"_L1, u"Copy"_s);
    all.tool(out, "export"_L1, u"Export"_s);
    addButtons(remove, open);
}

void ADDBKDISPLAY::addPrintCommands(QMenu &options)
{
    Commands &all = commands();
    const auto noRows = [this] { return m_grid->whyNoRows(); };
    QAction *list = all.add(
        &options, u"mOPrt"_s, u"&Print Options"_s, [this] { showPrintOptions(); }, noRows, CommonKeys::print);
    QAction *labels = all.add(
        &options, u"mOLab"_s, u"&Labels and Envelopes"_s, [this] { showLabels(); }, noRows);
    QAction *pictures =
        all.add(&options, u"mOPic"_s, u"P&ictures Display Screen"_s, [this] { showPictures(); });
    all.tool(list, "print"_L1, u"Print"_s);
    all.tool(labels, "label"_L1, u"Labels"_s);
    all.separateTools();
    all.tool(pictures, "picture"_L1, u"Pictures"_s);
    all.separateTools();
}

/// What a click on a heading does, for the keyboard.
void ADDBKDISPLAY::addSortMenu(QMenu &options)
{
    QMenu *menu = named(options.addMenu(u"So&rt"_s), u"mOSort"_s);
    menu->setToolTipsVisible(true);
    const auto add = [this, menu](const QString &name, const QString &caption, int column,
                                  Commands::Reason unless = {}) {
        const auto sort = [this, column] {
            showGrid();
            m_grid->sortBy(column);
        };
        commands().add(menu, name, caption, sort, std::move(unless));
    };
    add(u"mOSName"_s, u"By &Name"_s, AddressGrid::NameColumn);
    add(u"mOSInfo"_s, u"By &Information"_s, AddressGrid::InformationColumn,
        [this] { return m_grid->whyNoOrder(); });
    add(u"mOSRec"_s, u"&Record Order"_s, -1);
}

void ADDBKDISPLAY::addButtons(QAction *remove, QAction *open)
{
    Commands &all = commands();
    const QString dialWords = u"Dial Phone Number using computer modem"_s;
    QAction *dialling = all.add(
        nullptr, u"dial"_s, dialWords,
        [this] {
            if (!m_dialler->call(m_grid->information().trimmed()))
                activity().say(FrameLines::settingNotSaved());
        },
        [this] { return m_grid->whyNoCall(); });
    QAction *mail = all.add(
        nullptr, u"mail"_s, u"&Write E-mail"_s, [this] { writeMail(m_grid->information()); },
        [this] { return m_grid->whyNoMail(); });
    m_buttons->addLeft(all.button(remove, u"removeRow"_s, remove->text(), m_buttons));
    m_buttons->addLeft(all.addButton(dialling, makeIconButton(u"Image2"_s, "dial"_L1, dialWords, m_buttons)));
    m_buttons->addLeft(all.button(mail, u"writeMail"_s, mail->text(), m_buttons));
    m_buttons->addRight(all.button(open, u"openEntry"_s, open->text(), m_buttons, ButtonKind::Main));
    m_buttons->addRight(all.button(standard(Standard::Exit), u"exitViewer"_s, u"E&xit"_s, m_buttons));
}

void ADDBKDISPLAY::connectParts()
{
    connect(m_choices, &ViewerChoices::searchTyped, m_grid, &GridPane::search);
    connect(m_choices, &ViewerChoices::searchPressed, this, &ADDBKDISPLAY::search);
    connect(m_choices, &ViewerChoices::informationChosen, this,
            [this] { showRange(m_grid->viewer().range()); });
    connect(m_choices, &ViewerChoices::updateRequested, this, &ADDBKDISPLAY::updateDisplay);
    connect(m_choices, &ViewerChoices::leftForNames, this, [this] {
        showGrid();
        m_grid->setFocus();
    });
    connect(m_grid, &GridPane::modeRequested, this, &ADDBKDISPLAY::switchDisplayMode);
    connect(m_grid, &GridPane::rowsChanged, this, &ADDBKDISPLAY::followRows);
    connect(m_grid, &GridPane::currentChanged, &commands(), &Commands::refresh);
    connect(m_grid, &GridPane::linkFollowed, this, &ADDBKDISPLAY::writeMail);
    connect(m_grid, &GridPane::opened, this, &ADDBKDISPLAY::openEntry);
    connect(m_listOptions, &ListOptionsPanel::printRequested, this, &ADDBKDISPLAY::printList);
}

void ADDBKDISPLAY::updateDisplay()
{
    const DisplayRange::Kind kind = m_choices->rangeKind();
    const DisplayRange range{kind, m_choices->month(kind)};
    if (kind != DisplayRange::All && range.month == 0) {
        ask(kind == DisplayRange::BirthMonth ? ViewerMessages::birthdayMonthMissing()
                                             : ViewerMessages::anniversaryMonthMissing());
        m_choices->focusMonth(kind);
        return;
    }
    showRange(range);
}

/// The chosen information of the entries within `range`.
void ADDBKDISPLAY::showRange(const DisplayRange &range)
{
    m_grid->load(m_choices->information(), range);
    undoStack().forgetTyped(); // all rows are back
    activity().say(ViewerLines::rangeShown(range));
}

void ADDBKDISPLAY::search()
{
    if (m_choices->searchText().trimmed().isEmpty()) {
        ask(ViewerMessages::searchTextMissing());
        m_choices->focusSearch();
        return;
    }
    m_grid->search(m_choices->searchText());
    showGrid();
    if (m_grid->viewer().count() > 0)
        m_grid->setFocus();
}

/// From a search back to all names, and from there into the search box.
void ADDBKDISPLAY::switchDisplayMode()
{
    showGrid();
    if (!m_grid->viewer().searchText().isEmpty())
        m_choices->clearSearch();
    m_choices->focusSearch();
}

void ADDBKDISPLAY::followRows()
{
    const AddressViewer &viewer = m_grid->viewer();
    m_title->setChip(ViewerPages::choice(viewer.information()));
    m_listOptions->describe(viewer);
    if (m_views->isShown(m_labels))
        m_labels->follow(viewer);
    commands().refresh();
}

void ADDBKDISPLAY::filesChanged()
{
    m_grid->reload();
}

/// For the commands that act on the grid: whatever stands over it goes.
void ADDBKDISPLAY::showGrid()
{
    closePreview();
    m_views->goHome();
}

void ADDBKDISPLAY::removeRow()
{
    showGrid();
    const AddressGrid::Identity asked = m_grid->current();
    // Coming back from the question may have read the rows anew.
    if (m_grid->row() >= 0 && ask(ViewerMessages::removeRow()) == Answer::Yes)
        removeFromGrid(*m_grid, asked, undoStack(), activity());
}

void ADDBKDISPLAY::writeMail(const QString &address)
{
    QUrl url;
    url.setScheme(u"mailto"_s);
    url.setPath(address.trimmed());
    activity().say(m_surroundings.openAddress(url) ? QString() : ViewerLines::noMailProgram());
}

void ADDBKDISPLAY::openEntry()
{
    showGrid();
    const int record = m_grid->current().record;
    if (record == 0)
        return;
    QWidget *open = program().functions.window(Function::AddressBook);
    if (open ? !Locking::maySee(*open, program())
             : !program().gate.mayOpen(program(), Area::AddressBook, this))
        return;
    auto *book = qobject_cast<ADDBKVIEW *>(program().functions.open(Function::AddressBook, program()));
    if (book && !book->showRecord(record)) {
        bringToFront(*this); // or nobody reads it
        activity().say(ViewerLines::notInList());
    }
}

void ADDBKDISPLAY::copyRows()
{
    m_grid->loadRest();
    QApplication::clipboard()->setText(
        ViewerPages::clipboardText(m_grid->viewer(), program().state.dateStyle));
    ask(AddressMessages::dataCopied());
}

void ADDBKDISPLAY::exportRows()
{
    m_grid->loadRest();
    const QString name = ViewerPages::exportName(m_title->title());
    const QString folder = QDir::toNativeSeparators(program().folder.path());
    if (ask(ViewerMessages::exportNotice(folder, name)) != Answer::Ok)
        return;
    const QByteArray content = ViewerPages::exportText(m_grid->viewer(), program().state.dateStyle);
    const bool isSaved = Saving::replaceFile(program().folder, name, content);
    const QString path = QDir::toNativeSeparators(program().folder.filePath(name));
    activity().say(isSaved ? FrameLines::savedAs(path) : ViewerLines::notExported(name));
}

void ADDBKDISPLAY::showPrintOptions()
{
    m_grid->loadRest();
    closePreview();
    if (m_grid->viewer().information() == Information::Pictures) {
        m_pictureList->start(ViewerPages::picturesOf(m_grid->viewer()));
        return;
    }
    m_views->open(m_listOptions);
    m_listOptions->setFocus();
}

void ADDBKDISPLAY::printList()
{
    const auto list = [this](const PageContext &context) {
        return ViewerPages::list(m_grid->viewer(), m_listOptions->options(), context);
    };
    showPreview(list, u"Family and Friends List"_s);
}

void ADDBKDISPLAY::showLabels()
{
    m_grid->loadRest();
    closePreview();
    m_views->open(m_labels);
    m_labels->start(m_grid->viewer());
}

void ADDBKDISPLAY::showPictures()
{
    if (!m_pictures) {
        m_pictures = new ADDBKDISPLAY2(program());
        program().functions.join(Function::AddressViewer, *m_pictures);
    }
    bringToFront(*m_pictures);
}
