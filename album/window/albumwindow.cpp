// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/window/albumwindow.h"

#include "album/model/albumsource.h"
#include "album/model/photoshelf.h"
#include "album/window/albumcommands.h"
#include "album/window/albumpane.h"
#include "album/window/albumprint.h"
#include "album/window/albumview.h"
#include "album/window/albumwork.h"
#include "album/window/foldercommands.h"
#include "album/window/keepcommands.h"
#include "album/window/keepinglines.h"
#include "album/window/largeview.h"
#include "album/window/lookcommands.h"
#include "album/window/photodetails.h"
#include "album/window/photogrid.h"
#include "album/window/shelfcare.h"
#include "album/window/shelfcommands.h"
#include "album/window/showcommands.h"
#include "album/window/windowlines.h"
#include "shell/controls/activitybar.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/droplist.h"
#include "shell/core/helpcontexts.h"
#include "shell/core/place.h"
#include "shell/frame/sidesplitter.h"
#include "shell/frame/undostack.h"
#include "shell/frame/windowtoolbar.h"
#include "shell/frame/workviews.h"
#include "shell/pictures/picturequeue.h"

#include <QMenu>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSet>
#include <QShowEvent>
#include <QStandardPaths>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

WindowTraits traits()
{
    return {.name = u"PhotoVIEW1"_s,
            .caption = u"Photo Album"_s,
            .activity = u"Photo Album"_s,
            .colors = {SettingsKeys::addressEntryColor, SettingsKeys::addressEntryProgramColor,
                       SettingsKeys::addressEntryTextColor},
            .helpContext = HelpContext::PhotoAlbum};
}

/// They belong to the user's desk, and take time alone where they are gone.
QString thumbnailFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::CacheLocation) + u"/thumbnails"_s;
}

} // namespace

PhotoVIEW1::PhotoVIEW1(Program &program, QWidget *parent)
    : FunctionWindow(program, traits(), parent)
    , m_shelf(new PhotoShelf(program.folder, this))
    , m_queue(new PictureQueue(thumbnailFolder(), this))
    , m_stack(new WorkViews(this))
    , m_photos(new AlbumView(program, *m_shelf, *m_queue))
    , m_large(new LargeView(program, *m_shelf, thumbnailFolder()))
    , m_pane(new AlbumPane(program, *m_shelf, *m_queue, thumbnailFolder(), this))
    , m_details(new PhotoDetails(program, *m_shelf, this))
    , m_commands(new ShelfCommands(desk(), *m_details, this))
    , m_albums(new AlbumCommands(desk(), *m_pane, this))
    , m_look(new LookCommands(desk(), *m_large, this))
    , m_care(new ShelfCare(desk(), activity(), this))
    , m_folders(new FolderCommands(desk(), *m_care, this))
    , m_shows(new ShowCommands(desk(), thumbnailFolder(), this))
    , m_keep(new KeepCommands(desk(), *m_care, thumbnailFolder(), this))
    , m_print(new AlbumPrint(desk(), {[this]() -> PreviewPane & { return preview(); }, activity()}, this))
{
    setWork(new SideSplitter(u"leftPaneSplitter"_s, m_pane, makeWorkPanel(),
                             [](QSize window) { return window.width() < 1200 ? 212 : 252; }));
    makeCommands();
    setViews(m_stack);
    connectShelf();
    connectParts();
    connectLarge();
    connectCare();
    finishFrame();
    m_shelf->load();
    bring({});
    tellLocked();
    m_photos->setFocus();
}

/// A name that is being typed over is taken while all of it still stands.
PhotoVIEW1::~PhotoVIEW1()
{
    hide();
}

AlbumDesk PhotoVIEW1::desk()
{
    return {program(), *this, *m_shelf, commands(), *m_stack, *m_photos, *m_queue};
}

QWidget *PhotoVIEW1::makeWorkPanel()
{
    m_stack->addHome(m_photos);
    m_stack->addView(m_large);
    return makePanel(u"albumPanel"_s, new AlbumWork(m_stack, m_details));
}

/// The tools stand in the order in which their commands are made.
void PhotoVIEW1::makeCommands()
{
    QMenu *options = addMenu(u"mO"_s, u"&Options"_s);
    QMenu *edit = addMenu(u"mE"_s, u"&Edit"_s);
    QMenu *view = addMenu(u"mV"_s, u"&View"_s);
    QMenu *pictures = addMenu(u"mP"_s, u"&Pictures"_s);
    QMenu *albums = addMenu(u"mA"_s, u"&Albums"_s);
    m_folders->addCommands(pictures);
    m_albums->addCommands(albums);
    undoStack().addCommands(edit);
    edit->addSeparator();
    m_commands->addCommands(edit);
    m_look->addCommands(view, *m_albums, *m_pane);
    pictures->addSeparator();
    m_shows->addCommands(pictures);
    pictures->addSeparator();
    m_keep->addCommands(pictures);
    m_folders->addFurther(pictures);
    addUsualOptions(options, [this](QMenu *menu) { m_print->addCommands(menu); });
    addUtilitiesMenu();
    addHelpEntry();
    commands().separateTools();
    addUsualTools();
    makeButtons();
}

void PhotoVIEW1::makeButtons()
{
    const auto add = [this](ButtonRow &foot, QAction *command, const QString &name, const QString &caption,
                            ButtonKind kind = ButtonKind::Plain) {
        return commands().button(command, name, caption.isEmpty() ? command->text() : caption, &foot, kind);
    };
    ButtonRow &foot = m_photos->foot();
    foot.addLeft(add(foot, m_commands->outCommand(), u"takeOut"_s, u"&Take Out of Album"_s));
    foot.addRight(add(foot, m_look->largeCommand(), u"showLarge"_s, u"Sho&w Large"_s, ButtonKind::Main));
    foot.addRight(add(foot, standard(Standard::Exit), u"exitButton"_s, u"E&xit"_s));
    ButtonRow &largeFoot = m_large->foot();
    largeFoot.addLeft(add(largeFoot, m_commands->leftCommand(), u"turnLeft"_s, u"&Turn Left"_s));
    largeFoot.addLeft(add(largeFoot, m_commands->rightCommand(), u"turnRight"_s, {}));
    largeFoot.addLeft(add(largeFoot, m_look->zoomCommand(), u"fullSize"_s, {}));
    largeFoot.addRight(add(largeFoot, m_look->previousCommand(), u"previousPicture"_s, u"Previou&s"_s));
    largeFoot.addRight(add(largeFoot, m_look->nextCommand(), u"nextPicture"_s, u"Ne&xt"_s));
    largeFoot.addRight(
        add(largeFoot, m_look->backCommand(), u"backToGrid"_s, u"&Back to All"_s, ButtonKind::Main));
    QPushButton *create =
        commands().button(m_albums->createCommand(), u"newAlbumButton"_s, u"&New Album"_s, m_pane);
    m_photos->addFirstButton(commands().button(m_folders->addCommand(), u"firstFolder"_s,
                                               u"&Choose Folder..."_s, m_photos, ButtonKind::Main));
    m_photos->addMissingButton(
        commands().button(m_keep->findCommand(), u"findMissing"_s, u"&Find Again..."_s, &foot));
    m_pane->addButton(create);
    setTabOrder(&m_pane->list(), create);
}

void PhotoVIEW1::connectShelf()
{
    connect(m_shelf, &PhotoShelf::edited, this, [this](const UndoStep &step) {
        undoStack().push(step);
        activity().say(step.title);
        undoStack().offer();
    });
    connect(m_shelf, &PhotoShelf::said, this, [this](const QString &line) { activity().say(line); });
    connect(m_shelf, &PhotoShelf::fileTouched, this, [this] { watchFiles(PhotoShelf::fileNames()); });
    connect(m_shelf, &PhotoShelf::photosChanged, this,
            [this](const QList<int> &records) { m_photos->followPhotos(records); });
    connect(m_shelf, &PhotoShelf::changed, this, [this] {
        m_pane->refresh();
        if (const PhotosShown &shown = m_photos->shown();
            shown.isOf(ShelfView::Kind::Album) && !m_photos->shownAlbum())
            bring({}); // the album is gone
        else
            m_photos->followShelf();
        m_large->followShelf(m_photos->records());
        if (m_stack->isShown(m_large) && m_large->record() == 0)
            m_look->closeLarge();
        m_details->refresh();
        m_albums->refresh();
        commands().refresh();
    });
}

void PhotoVIEW1::connectParts()
{
    const auto say = [this](const QString &line) { activity().say(line); };
    connect(m_pane, &AlbumPane::chosen, this, &PhotoVIEW1::bringUnlessRefused);
    connect(m_pane, &AlbumPane::entered, this, [this] {
        if (m_stack->isHome())
            m_photos->setFocus();
    });
    connect(m_pane, &AlbumPane::dropped, m_commands, &ShelfCommands::putInto);
    connect(m_pane, &AlbumPane::ordered, m_shelf, &PhotoShelf::moveAlbum);
    connect(m_pane, &AlbumPane::renamed, m_albums, &AlbumCommands::rename);
    connect(m_photos, &AlbumView::moved, this, &PhotoVIEW1::followChoice);
    connect(m_photos, &AlbumView::orderChosen, this,
            [this](int sorting) { m_albums->setOrder(PhotoAlbum::Sorting(sorting)); });
    PhotoGrid &grid = m_photos->grid();
    connect(&grid, &PictureGrid::opened, m_look, &LookCommands::openLarge);
    connect(&grid, &PictureGrid::digitTyped, this, [this](int digit) {
        if (digit <= Photo::mostRating)
            m_commands->rate(digit);
    });
    connect(&grid, &PhotoGrid::arranged, this, [this](const QList<int> &records, int before) {
        if (const PhotoAlbum *album = m_photos->shownAlbum())
            m_shelf->arrange(album->record, records, before);
    });
    connect(&grid, &PictureGrid::markingChanged, this,
            [this, &grid] { activity().say(grid.isMarking() ? AlbumWindowLines::howToMark() : QString()); });
    connect(&grid, &PhotoGrid::refused, this, [this] { activity().say(AlbumWindowLines::notByHand()); });
    connect(&grid, &QWidget::customContextMenuRequested, this, [this](const QPoint &place) {
        findChild<QMenu *>(u"mE"_s)->popup(m_photos->grid().viewport()->mapToGlobal(place));
    });
    connect(m_details, &PhotoDetails::said, this, say);
    connect(m_details, &PhotoDetails::left, this, [this] { m_stack->currentWidget()->setFocus(); });
    connect(m_commands, &ShelfCommands::said, this, say);
    connect(m_albums, &AlbumCommands::said, this, say);
    connect(m_albums, &AlbumCommands::albumWanted, this, [this](int album) {
        bring({{ShelfView::Kind::Album, album}, {}});
    });
    connect(m_look, &LookCommands::viewWanted, this, &PhotoVIEW1::bringUnlessRefused);
    connect(&activity(), &ActivityBar::dayBegan, this, [this] {
        m_pane->refresh();
        m_photos->followShelf();
    });
}

void PhotoVIEW1::connectLarge()
{
    connect(m_large, &LargeView::stepped, this, [this](int record) {
        activity().say({});
        m_photos->choose({record});
    });
    connect(m_large, &LargeView::said, this, [this](const QString &line) { activity().say(line); });
    connect(m_large, &LargeView::zoomChanged, m_look, &LookCommands::refresh);
    connect(m_stack, &WorkViews::changed, this, &PhotoVIEW1::followView);
}

void PhotoVIEW1::connectCare()
{
    connect(m_care, &ShelfCare::said, this, [this](const QString &line) {
        activity().say(line);
        undoStack().offer();
    });
    connect(m_care, &ShelfCare::changed, &commands(), &Commands::refresh);
    connect(m_care, &ShelfCare::taken, this, &PhotoVIEW1::showTaken);
    connect(&m_photos->grid(), &PhotoGrid::filesDropped, m_folders, &FolderCommands::take);
    connect(m_albums, &AlbumCommands::intoChanged, m_care, &ShelfCare::catchUp);
    connect(m_care, &ShelfCare::lookedFirst, m_keep, &KeepCommands::offerCards);
    connect(&m_care->look(), &ShelfLook::conflictsChanged, this, [this] {
        commands().refresh();
        if (const int count = int(m_care->look().conflicts().size()); count > 0) {
            activity().say(AlbumWindowLines::conflicts(count));
            activity().offerWay(AlbumWindowLines::compare(), [this] { m_folders->openConflicts(); });
        }
    });
    connect(m_keep, &KeepCommands::said, this, [this](const QString &line) { activity().say(line); });
    connect(m_keep, &KeepCommands::linked, this, [this](const QString &line) {
        activity().say(line);
        undoStack().offer();
    });
    connect(m_keep, &KeepCommands::cardsOffered, this, [this](const QString &line) {
        activity().say(line);
        activity().offerWay(KeepingLines::bringIn(), [this] { m_keep->openCards(); });
    });
    connect(m_shows, &ShowCommands::ended, this, [this](int record) {
        m_photos->choose({record});
        m_stack->currentWidget()->setFocus();
    });
}

/// The first of them as they stand is chosen. The button that asked for them may be gone by now: the keys are
/// for the pictures then.
void PhotoVIEW1::showTaken(const QList<int> &records)
{
    const QSet<int> taken(records.cbegin(), records.cend());
    const QList<int> &shown = m_photos->records();
    const auto first = std::ranges::find_if(shown, [&taken](int record) { return taken.contains(record); });
    if (first != shown.cend())
        m_photos->choose({*first});
    const QWidget *focus = focusWidget();
    if (m_stack->isHome() && (!focus || toolbar().isAncestorOf(focus)))
        m_photos->setFocus();
}

/// Nothing is read before the window is painted.
void PhotoVIEW1::showEvent(QShowEvent *event)
{
    FunctionWindow::showEvent(event);
    if (!std::exchange(m_isBegun, true))
        QMetaObject::invokeMethod(m_care, &ShelfCare::start, Qt::QueuedConnection);
}

/// Panels have the whole width to themselves.
void PhotoVIEW1::followView()
{
    m_details->finish();
    m_details->setVisible(m_stack->isHome() || m_stack->isShown(m_large));
    activity().say({});
    m_look->refresh();
}

void PhotoVIEW1::bring(const PhotosShown &shown)
{
    m_details->finish();
    activity().say(m_shelf->whyLocked());
    closePreview();
    if (!m_stack->isHome())
        m_stack->goHome();
    if (!shown.isSearch())
        m_pane->clearSearch();
    m_photos->show(shown);
    m_pane->show(shown);
    m_albums->refresh();
    m_look->refresh();
    commands().refresh();
}

/// Other pictures are brought when what was typed for these has been taken.
void PhotoVIEW1::bringUnlessRefused(const PhotosShown &shown)
{
    m_details->finish();
    const bool isSeen = m_stack->isHome() || m_stack->isShown(m_large);
    if (!isSeen || m_details->refused().isEmpty()) {
        bring(shown);
        return;
    }
    m_pane->show(m_photos->shown());
    QMetaObject::invokeMethod(m_details, &PhotoDetails::mend, Qt::QueuedConnection); // behind the click
}

/// What was typed and refused is mended, or given up by Esc, before other pictures are chosen.
bool PhotoVIEW1::returnsToRefused()
{
    m_details->finish();
    const QList<int> refused = m_details->refused();
    const QList<int> &shown = m_photos->records();
    const bool areShown =
        std::ranges::all_of(refused, [&shown](int record) { return shown.contains(record); });
    const bool isSeen = m_stack->isHome() || m_stack->isShown(m_large);
    if (refused.isEmpty() || !areShown || !isSeen || m_photos->chosen() == refused)
        return false;
    QMetaObject::invokeMethod( // behind the click that chose others
        this,
        [this, refused] {
            {
                const QScopedValueRollback<bool> returning(m_isReturning, true);
                if (m_stack->isShown(m_large))
                    m_large->choose(refused.first());
                m_photos->choose(refused);
            }
            m_details->show(m_photos->chosen());
            m_details->mend();
        },
        Qt::QueuedConnection);
    return true;
}

void PhotoVIEW1::followChoice()
{
    if (m_isReturning || returnsToRefused())
        return;
    m_details->show(m_photos->chosen());
    commands().refresh();
}

/// What is no file of ours can be set aside, so that the album can begin.
void PhotoVIEW1::tellLocked()
{
    const QString why = m_shelf->whyLocked();
    if (why.isEmpty())
        return;
    activity().say(why);
    if (const QStringList foreign = m_shelf->foreignFiles(); !foreign.isEmpty()) {
        activity().offerWay(AlbumWindowLines::setAside(), [this, name = foreign.first()] {
            if (m_shelf->setAside(name))
                tellLocked();
        });
    }
}

bool PhotoVIEW1::isModified() const
{
    m_details->finish();
    return false;
}

void PhotoVIEW1::filesChanged()
{
    m_details->finish();
    closePreview();
    m_shelf->load();
    activity().say(AlbumWindowLines::changedElsewhere());
    tellLocked();
}

/// A picture, an album, or the pictures of earlier years that a date has.
void PhotoVIEW1::showPlace(const Place &place)
{
    if (const int album = AlbumSource::albumOf(place); album != 0)
        bring({{ShelfView::Kind::Album, album}, {}});
    else if (place.record == 0 && place.date == clock().today())
        bring({{ShelfView::Kind::OnThisDay, 0}, {}});
    else
        bring({});
    if (place.record != 0 && AlbumSource::albumOf(place) == 0)
        m_photos->choose({place.record});
    m_photos->setFocus();
}
