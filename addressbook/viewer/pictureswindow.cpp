// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/viewer/pictureswindow.h"

#include "addressbook/model/viewerlines.h"
#include "addressbook/model/viewermessages.h"
#include "addressbook/model/viewerpages.h"
#include "addressbook/viewer/pictureprint.h"
#include "shell/controls/activitybar.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/emptypage.h"
#include "shell/controls/titleline.h"
#include "shell/core/helpcontexts.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/workviews.h"
#include "shell/look/theme.h"
#include "shell/pictures/enlargedpicture.h"
#include "shell/pictures/picturegallery.h"
#include "shell/preview/pagestepper.h"

#include <QHBoxLayout>
#include <QMenu>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

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

} // namespace

ADDBKDISPLAY2::ADDBKDISPLAY2(Program &program, QWidget *parent)
    : FunctionWindow(program, traits(), parent)
    , m_viewer(program.folder, program.state.dateStyle)
    , m_print(new PicturePrint(program, activity(), this))
{
    QWidget *panel = makePanel(u"Panel3D1"_s);
    auto *layout = new QVBoxLayout(panel);
    layout->setContentsMargins(1, 1, 1, 1);
    m_views = new WorkViews(panel);
    m_enlarged = new EnlargedPicture(program.folder, u"normalPicture"_s, u"&Normal"_s);
    m_galleryPage = makeGalleryPage();
    m_emptyPage = named(new EmptyPage("picture"_L1, u"No entry has a picture yet"_s,
                                      u"Load Picture on the address book's screen gives it one."_s),
                        u"emptyPictures"_s);
    m_views->addHome(m_galleryPage);
    m_views->addHome(m_emptyPage);
    m_views->addPanel(m_enlarged);
    setViews(m_views);
    layout->addWidget(m_views);
    setWork(panel);
    makeMenus();
    finishFrame();
    readBook();
    watchFiles(AddressBook::fileNames());
    m_gallery->setFocus();
}

ADDBKDISPLAY2::~ADDBKDISPLAY2() = default;

QWidget *ADDBKDISPLAY2::makeGalleryPage()
{
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(24, 16, 24, 18);
    layout->setSpacing(12);
    m_gallery =
        named(new PictureGallery(program().folder, ViewerPages::picturesPerSheet, page), u"pictures"_s);
    m_gallery->setAccessibleName(u"Pictures"_s);
    page->setFocusProxy(m_gallery);
    auto *head = new TitleLine(u"Panel3D2"_s, ViewerMessages::picturesTitle(), page);
    m_steps = new PageStepper({u"previousPictures"_s, u"picturePage"_s, u"nextPictures"_s}, head);
    head->addAtRight(m_steps);
    layout->addWidget(head);
    layout->addWidget(m_gallery, 1);
    layout->addWidget(makeLine(page));
    layout->addWidget(makeFoot());
    connect(m_steps, &PageStepper::pageRequested, this, &ADDBKDISPLAY2::showPage);
    connect(m_gallery, &PictureGallery::stepRequested, this,
            [this](int step) { showPage(m_steps->page() + step); });
    connect(m_gallery, &PictureGallery::progressed, this, &ADDBKDISPLAY2::showProgress);
    connect(m_gallery, &PictureGallery::opened, this, &ADDBKDISPLAY2::enlarge);
    return page;
}

QWidget *ADDBKDISPLAY2::makeFoot()
{
    auto *row = new ButtonRow(this);
    m_total = named(makeQuietLabel({}, this), u"pictureTotal"_s);
    m_total->setFont(TypeScale::body());
    auto *foot = new QWidget(this);
    auto *layout = new QHBoxLayout(foot);
    layout->setContentsMargins({});
    layout->addWidget(m_total);
    layout->addWidget(row, 1);
    QAction *enlarge = commands().add(
        nullptr, u"enlarge"_s, u"Enlar&ge"_s, [this] { enlargeCurrent(); },
        [this] { return whyNoPicture(); });
    row->addRight(commands().button(enlarge, u"enlargePicture"_s, enlarge->text(), row, ButtonKind::Main));
    row->addRight(commands().button(standard(Standard::Exit), u"exitPictures"_s, u"E&xit"_s, row));
    return foot;
}

void ADDBKDISPLAY2::makeMenus()
{
    QMenu *options = addMenu(u"mO"_s, u"&Options"_s);
    options->addAction(standard(Standard::PanelColor));
    QAction *print = commands().add(
        options, u"mOPrt"_s, u"&Print"_s, [this] { m_print->start(picturesOfPage()); },
        [this] { return whyNoPicture(); }, CommonKeys::print);
    options->addSeparator();
    options->addAction(standard(Standard::Exit));
    addUtilitiesMenu();
    addHelpEntry();

    commands().tool(print, "print"_L1, u"Print"_s);
    commands().separateTools();
    for (const Standard tool : {Standard::PanelColor, Standard::Backup, Standard::Help})
        addStandardTool(tool);
}

QString ADDBKDISPLAY2::whyNoPicture() const
{
    return m_pictures.empty() ? ViewerLines::noPictures() : QString();
}

void ADDBKDISPLAY2::showEvent(QShowEvent *event)
{
    FunctionWindow::showEvent(event);
    if (!m_pictures.empty() && !std::exchange(m_hasWarned, true))
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
    m_views->setHome(m_pictures.empty() ? m_emptyPage : m_galleryPage);
    showPage(std::min(m_steps->page(), pageCount() - 1));
}

int ADDBKDISPLAY2::pageCount() const
{
    constexpr auto perPage = std::size_t(ViewerPages::picturesPerSheet);
    return int(std::max<std::size_t>(1, (m_pictures.size() + perPage - 1) / perPage));
}

std::vector<NamedPicture> ADDBKDISPLAY2::picturesOfPage() const
{
    constexpr auto perPage = std::size_t(ViewerPages::picturesPerSheet);
    const auto first = std::size_t(m_steps->page()) * perPage;
    const auto end = std::min(m_pictures.size(), first + perPage);
    return {m_pictures.begin() + std::ptrdiff_t(first), m_pictures.begin() + std::ptrdiff_t(end)};
}

void ADDBKDISPLAY2::showPage(int page)
{
    if (page < 0 || page >= pageCount())
        return;
    m_steps->setPage(page, pageCount());
    commands().refresh();
    m_gallery->setPictures(picturesOfPage());
    activity().say(whyNoPicture());
    showProgress();
}

void ADDBKDISPLAY2::showProgress()
{
    if (m_print->isBusy())
        return;
    const int total = int(picturesOfPage().size());
    const int waiting = m_gallery->waitingCount();
    activity().showProgress(total - waiting, waiting == 0 ? 0 : total);
}

void ADDBKDISPLAY2::enlarge(const QString &stored, const QString &name)
{
    m_enlarged->enlarge(stored, name);
    m_gallery->setFocus(); // where it comes back to
    m_views->open(m_enlarged);
    m_enlarged->setFocus();
}

void ADDBKDISPLAY2::enlargeCurrent()
{
    const int row = m_gallery->currentIndex().row();
    const std::vector<NamedPicture> pictures = picturesOfPage();
    if (row >= 0 && std::size_t(row) < pictures.size())
        enlarge(pictures[std::size_t(row)].stored, pictures[std::size_t(row)].name);
}
