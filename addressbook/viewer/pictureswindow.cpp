#include "addressbook/viewer/pictureswindow.h"

#include "addressbook/model/viewerlines.h"
#include "addressbook/model/viewermessages.h"
#include "addressbook/model/viewerpages.h"
#include "shell/controls/activitybar.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/controls.h"
#include "shell/core/framelines.h"
#include "shell/core/helpcontexts.h"
#include "shell/core/settingskeys.h"
#include "shell/look/theme.h"
#include "shell/pictures/pictureframe.h"
#include "shell/pictures/picturegallery.h"
#include "shell/pictures/picturelines.h"

#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

/// What the enlarged picture is read for: enough to fill a fine screen.
constexpr QSize enlargedPixels(1600, 1600);

WindowTraits traits()
{
    WindowTraits traits;
    traits.name = u"ADDBKDISPLAY2"_s;
    traits.caption = ViewerMessages::picturesTitle();
    traits.activity = u"Pictures"_s;
    traits.colors = {SettingsKeys::addressPicturesColor, SettingsKeys::addressPicturesProgramColor, {}};
    traits.helpContext = HelpContext::AddressViewer;
    return traits;
}

QVBoxLayout *pageLayout(QWidget *page)
{
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(24, 16, 24, 18);
    layout->setSpacing(12);
    return layout;
}

} // namespace

ADDBKDISPLAY2::ADDBKDISPLAY2(Program &program, QWidget *parent)
    : FunctionWindow(program, traits(), parent)
    , m_viewer(program.folder, program.state.dateStyle)
    , m_copies(new PictureCopies(program.folder, this))
    , m_enlarger(new PictureLoader(program.folder, this))
{
    QWidget *panel = makePanel(u"Panel3D1"_s);
    auto *layout = new QVBoxLayout(panel);
    layout->setContentsMargins(1, 1, 1, 1);
    m_pages = new QStackedWidget(panel);
    m_galleryPage = makeGalleryPage();
    m_enlargedPage = makeEnlargedPage();
    m_pages->addWidget(m_galleryPage);
    m_pages->addWidget(m_enlargedPage);
    layout->addWidget(m_pages);
    setWork(panel);
    makeMenus();
    connect(m_copies, &PictureCopies::progressed, this,
            [this](int done, int total) { activity().showProgress(done, total, true); });
    connect(m_copies, &PictureCopies::ready, this, &ADDBKDISPLAY2::showCopies);
    connect(&activity(), &ActivityBar::stopRequested, this, &ADDBKDISPLAY2::stop);
    finishFrame();
    readBook();
    m_gallery->setFocus();
}

ADDBKDISPLAY2::~ADDBKDISPLAY2() = default;

QWidget *ADDBKDISPLAY2::makeGalleryPage()
{
    auto *page = new QWidget;
    QVBoxLayout *layout = pageLayout(page);
    auto *title = named(new ElidedLabel(page), u"Panel3D2"_s);
    title->setText(ViewerMessages::picturesTitle());
    title->setFont(TypeScale::windowTitle());
    m_previous = makeIconButton(u"previousPictures"_s, "previous"_L1, u"Previous page"_s, page);
    m_next = makeIconButton(u"nextPictures"_s, "next"_L1, u"Next page"_s, page);
    m_pageNumber = named(new QLabel(page), u"picturePage"_s);
    m_pageNumber->setFont(TypeScale::strong());
    m_total = named(makeQuietLabel({}, page), u"pictureTotal"_s);
    m_total->setFont(TypeScale::body());
    auto *head = new QHBoxLayout;
    head->setSpacing(8);
    head->addWidget(title, 1);
    for (QWidget *part : std::initializer_list<QWidget *>{m_previous, m_pageNumber, m_next})
        head->addWidget(part);
    m_gallery =
        named(new PictureGallery(program().folder, ViewerPages::picturesPerSheet, page), u"pictures"_s);
    m_gallery->setAccessibleName(u"Pictures"_s);
    layout->addLayout(head);
    layout->addWidget(m_gallery, 1);
    layout->addWidget(makeLine(page));
    auto *foot = new QHBoxLayout;
    foot->addWidget(m_total);
    foot->addWidget(makeButtonRow(page), 1);
    layout->addLayout(foot);

    connect(m_previous, &QPushButton::clicked, this, [this] { showPage(m_page - 1); });
    connect(m_next, &QPushButton::clicked, this, [this] { showPage(m_page + 1); });
    connect(m_gallery, &PictureGallery::stepRequested, this, [this](int step) { showPage(m_page + step); });
    connect(m_gallery, &PictureGallery::progressed, this, &ADDBKDISPLAY2::refreshProgress);
    connect(m_gallery, &PictureGallery::opened, this, &ADDBKDISPLAY2::enlarge);
    return page;
}

QWidget *ADDBKDISPLAY2::makeButtonRow(QWidget *parent)
{
    auto *row = new ButtonRow(parent);
    m_enlargeButton = makeButton(u"enlargePicture"_s, u"Enlar&ge"_s, row, ButtonKind::Main);
    QPushButton *exit = makeButton(u"exitPictures"_s, u"E&xit"_s, row);
    row->addRight(m_enlargeButton);
    row->addRight(exit);
    connect(m_enlargeButton, &QPushButton::clicked, this, &ADDBKDISPLAY2::enlargeCurrent);
    connect(exit, &QPushButton::clicked, this, &QWidget::close);
    return row;
}

QWidget *ADDBKDISPLAY2::makeEnlargedPage()
{
    auto *page = new QWidget;
    QVBoxLayout *layout = pageLayout(page);
    auto *name = named(new ElidedLabel(page), u"enlargedName"_s);
    name->setFont(TypeScale::windowTitle());
    m_enlargedName = name;
    m_enlarged = named(new PictureFrame(page), u"enlargedPicture"_s);
    m_enlarged->setAlignment(Qt::AlignCenter);
    m_enlarged->setAccessibleName(u"Picture, enlarged"_s);
    m_normalButton = makeButton(u"normalPicture"_s, u"&Normal"_s, page, ButtonKind::Main);
    connect(m_normalButton, &QPushButton::clicked, this, &ADDBKDISPLAY2::leaveEnlarged);
    auto *foot = new QHBoxLayout;
    foot->addStretch(1);
    foot->addWidget(m_normalButton);
    layout->addWidget(name);
    layout->addWidget(m_enlarged, 1);
    layout->addWidget(makeLine(page));
    layout->addLayout(foot);
    return page;
}

QAction *ADDBKDISPLAY2::addCommand(QMenu *menu, const QString &name, const QString &caption,
                                   void (ADDBKDISPLAY2::*command)())
{
    QAction *action = makeAction(name, caption, this);
    connect(action, &QAction::triggered, this, command);
    if (menu)
        menu->addAction(action);
    return action;
}

void ADDBKDISPLAY2::makeMenus()
{
    QMenu *options = named(menuBar()->addMenu(u"&Options"_s), u"mO"_s);
    options->setToolTipsVisible(true);
    m_panelColorAction = addCommand(options, u"mOC"_s, u"Panel C&olor"_s, &ADDBKDISPLAY2::choosePanelColor);
    m_printAction = addCommand(options, u"mOPrt"_s, u"&Print Page"_s, &ADDBKDISPLAY2::printPage);
    options->addSeparator();
    QAction *exit = makeAction(u"mOEx"_s, u"E&xit"_s, this);
    connect(exit, &QAction::triggered, this, &QWidget::close);
    options->addAction(exit);
    QMenu *utilities = named(menuBar()->addMenu(u"&Utilities"_s), u"mU"_s);
    utilities->setToolTipsVisible(true);
    QAction *backup = addCommand(utilities, u"mUB"_s, u"&Backup Files to Disk"_s, &ADDBKDISPLAY2::openBackup);
    QAction *restore =
        addCommand(utilities, u"mUR"_s, u"&Restore Files from Disk"_s, &ADDBKDISPLAY2::openBackup);
    for (QAction *action : {backup, restore})
        setUnavailable(action,
                       program().functions.has(Function::Backup) ? QString() : FrameLines::backupNotThere());
    m_helpAction = addCommand(nullptr, u"mH"_s, u"&Help"_s, &ADDBKDISPLAY2::showHelp);
    menuBar()->addAction(m_helpAction);

    addTool(m_printAction, "print"_L1, u"Print"_s);
    addToolSeparator();
    addTool(m_panelColorAction, "palette"_L1, u"Panel Color"_s);
    addTool(backup, "backup-command"_L1, u"Backup"_s);
    addTool(addCommand(nullptr, u"toolHelp"_s, u"Help"_s, &ADDBKDISPLAY2::showHelp), "help"_L1, u"Help"_s);
}

void ADDBKDISPLAY2::showEvent(QShowEvent *event)
{
    FunctionWindow::showEvent(event);
    if (!std::exchange(m_hasWarned, true))
        QMetaObject::invokeMethod(this, &ADDBKDISPLAY2::warn, Qt::QueuedConnection);
}

void ADDBKDISPLAY2::warn()
{
    ask(ViewerMessages::picturesRestraint());
    activateWindow();
}

/// The same page stays, as far as there are so many.
void ADDBKDISPLAY2::readBook()
{
    m_viewer.load(Information::Pictures, {});
    m_pictures = ViewerPages::picturesOf(m_viewer);
    m_total->setText(ViewerMessages::pictureTotal(int(m_pictures.size())));
    showPage(std::min(m_page, pageCount() - 1));
}

int ADDBKDISPLAY2::pageCount() const
{
    constexpr auto perPage = std::size_t(ViewerPages::picturesPerSheet);
    return int(std::max<std::size_t>(1, (m_pictures.size() + perPage - 1) / perPage));
}

std::vector<NamedPicture> ADDBKDISPLAY2::picturesOfPage() const
{
    const auto first = std::size_t(m_page * ViewerPages::picturesPerSheet);
    const auto end = std::min(m_pictures.size(), first + std::size_t(ViewerPages::picturesPerSheet));
    return {m_pictures.begin() + std::ptrdiff_t(first), m_pictures.begin() + std::ptrdiff_t(end)};
}

void ADDBKDISPLAY2::showPage(int page)
{
    if (page < 0 || page >= pageCount())
        return;
    m_page = page;
    m_pageNumber->setText(ViewerMessages::pageOf(page + 1, pageCount()));
    setUnavailable(m_previous, page == 0 ? FrameLines::firstPage() : QString());
    setUnavailable(m_next, page + 1 == pageCount() ? FrameLines::lastPage() : QString());
    const QString reason = m_pictures.empty() ? ViewerLines::noPictures() : QString();
    setUnavailable(m_enlargeButton, reason);
    setUnavailable(m_printAction, reason);
    m_gallery->setPictures(picturesOfPage());
    activity().say(reason);
    refreshProgress();
}

void ADDBKDISPLAY2::refreshProgress()
{
    if (m_copies->isBusy())
        return;
    const int total = int(picturesOfPage().size());
    const int waiting = m_gallery->waitingCount();
    activity().showProgress(total - waiting, waiting == 0 ? 0 : total);
}

void ADDBKDISPLAY2::enlarge(const QString &stored, const QString &name)
{
    m_enlargedName->setText(name);
    m_enlarged->clear();
    m_enlarged->setWords(PictureLines::loading());
    m_enlarger->forget();
    m_enlarger->load(stored, enlargedPixels, [this](const LoadedPicture &picture) {
        m_enlarged->setWords(PictureLines::pictureNotFound());
        m_enlarged->setImage(picture.image);
    });
    m_pages->setCurrentWidget(m_enlargedPage);
    m_normalButton->setFocus();
}

void ADDBKDISPLAY2::enlargeCurrent()
{
    const int row = m_gallery->currentIndex().row();
    const std::vector<NamedPicture> pictures = picturesOfPage();
    if (row >= 0 && std::size_t(row) < pictures.size())
        enlarge(pictures[std::size_t(row)].stored, pictures[std::size_t(row)].name);
}

void ADDBKDISPLAY2::leaveEnlarged()
{
    m_enlarger->forget();
    m_pages->setCurrentWidget(m_galleryPage);
    m_gallery->setFocus();
}

Page ADDBKDISPLAY2::page(const PageSetup &setup) const
{
    return ViewerPages::pictureList(m_copies->pictures(), setup, program().state.dateStyle, clock().today());
}

void ADDBKDISPLAY2::printPage()
{
    closePreview(); // its pictures go with the copies
    m_copies->make(picturesOfPage());
}

void ADDBKDISPLAY2::showCopies()
{
    activity().showProgress(0, 0);
    showPreview([this](const PageSetup &setup) { return page(setup); }, u"Family and Friends Pictures"_s);
}

void ADDBKDISPLAY2::stop()
{
    m_copies->stop();
    activity().say(ViewerLines::stopped());
    refreshProgress();
}

void ADDBKDISPLAY2::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && !isPreviewShown() && m_pages->currentWidget() == m_enlargedPage)
        leaveEnlarged();
    else
        FunctionWindow::keyPressEvent(event);
}

/// Who comes back from the address book sees the pictures that were changed there.
void ADDBKDISPLAY2::changeEvent(QEvent *event)
{
    FunctionWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && m_viewer.isOutdated())
        readBook();
}

void ADDBKDISPLAY2::openBackup()
{
    program().functions.open(Function::Backup, program());
}

void ADDBKDISPLAY2::showHelp()
{
    emit program().changes.helpRequested(HelpContext::AddressViewer);
}

void ADDBKDISPLAY2::choosePanelColor()
{
    colors().choosePanelColor();
}
