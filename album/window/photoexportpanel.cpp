// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/window/photoexportpanel.h"

#include "album/model/kepttexts.h"
#include "album/window/keepinglines.h"
#include "shell/program/program.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QRadioButton>
#include <QSettings>
#include <QVBoxLayout>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1StringView keys("Windows/PhotoVIEW1/export/");
constexpr std::array sides{1024, 1600, 2048, 3840};
constexpr int usualSide = 1600;
constexpr int sideWidth = 240;

} // namespace

PhotoExportPanel::PhotoExportPanel(const Program &program, PhotoShelf &shelf, QWidget *window,
                                   QWidget *parent)
    : WalkPanel(u"exportPanel"_s, u"Export"_s, parent)
    , m_program(program)
    , m_window(window)
    , m_export(shelf)
    , m_what(makeHeading({}, this))
    , m_originals(named(new QRadioButton(u"The o&riginals"_s, this), u"exportOriginals"_s))
    , m_smaller(named(new QRadioButton(u"S&maller JPEGs, with a longer side of"_s, this), u"exportSmaller"_s))
    , m_side(named(new QComboBox(this), u"exportSide"_s))
    , m_texts(
          named(new QCheckBox(u"&Captions, people, tags and dates in the files"_s, this), u"exportTexts"_s))
    , m_noPlace(
          named(new QCheckBox(u"Ta&ke out the place coordinates of the camera"_s, this), u"exportNoPlace"_s))
    , m_choose(makeButton(u"exportChoose"_s, u"Choose &Folder..."_s, this))
    , m_folderName(named(new ElidedLabel(this), u"exportFolder"_s))
    , m_run(nullptr)
{
    auto *content = new QWidget(this);
    fill(content);
    setWalkWork(content);
    m_run = addButton(u"exportRun"_s, u"E&xport"_s, ButtonKind::Main);
    setLeave(setLeaveButton(u"exportClose"_s, u"C&lose"_s));
    setFocusProxy(m_choose);
    connect(m_choose, &QPushButton::clicked, this, &PhotoExportPanel::chooseFolder);
    connect(m_run, &QPushButton::clicked, this, &PhotoExportPanel::run);
    connect(m_smaller, &QRadioButton::toggled, m_side, &QWidget::setEnabled);
    connect(&m_export, &AlbumExport::progressed, this, &PhotoExportPanel::showWalk);
    connect(&m_export, &AlbumExport::finished, this, &PhotoExportPanel::finish);
}

void PhotoExportPanel::fill(QWidget *content)
{
    const QSettings &store = m_program.store;
    for (const int side : sides)
        m_side->addItem(u"%1 pixels"_s.arg(side), side);
    m_side->setCurrentIndex(m_side->findData(store.value(keys + "side"_L1, usualSide).toInt()));
    if (m_side->currentIndex() < 0)
        m_side->setCurrentIndex(m_side->findData(usualSide));
    m_side->setFixedWidth(boxWidth({}, sideWidth));
    m_side->setAccessibleName(u"Longer side"_s);
    const bool isSmaller = store.value(keys + "smaller"_L1).toBool();
    m_originals->setChecked(!isSmaller);
    m_smaller->setChecked(isSmaller);
    m_side->setEnabled(isSmaller);
    m_texts->setChecked(store.value(keys + "texts"_L1, true).toBool());
    m_noPlace->setChecked(true);
    const QString why = KeptTexts::isBuiltIn() ? QString() : KeepingLines::textsNotBuiltIn();
    setUnavailable(m_texts, why);
    auto *smaller = new QHBoxLayout;
    smaller->setSpacing(12);
    smaller->addWidget(m_smaller);
    smaller->addWidget(m_side);
    smaller->addStretch(1);
    m_what->setWordWrap(true);
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins({});
    column->setSpacing(12);
    column->addWidget(m_what);
    column->addWidget(m_originals);
    column->addLayout(smaller);
    column->addWidget(m_texts);
    column->addWidget(m_noPlace);
    column->addWidget(makeFolderRow(content));
    column->addStretch(1);
}

QWidget *PhotoExportPanel::makeFolderRow(QWidget *content)
{
    auto *place = new QWidget(content);
    auto *row = new QHBoxLayout(place);
    row->setContentsMargins({});
    row->setSpacing(12);
    row->addWidget(m_choose);
    row->addWidget(m_folderName, 1);
    return place;
}

void PhotoExportPanel::start(const QString &name, const QList<int> &photos)
{
    if (isWalking())
        return;
    m_photos = photos;
    m_what->setText(u"%1: %2"_s.arg(name, AlbumLines::pictures(photos.size())));
    m_noPlace->setChecked(true);
    setFolder({});
}

void PhotoExportPanel::chooseFolder()
{
    const auto folder = m_program.dialogs.chooseFolder(
        m_window, KeepingLines::exportFolder(),
        m_program.store.value(keys + "folder"_L1, QDir::homePath()).toString());
    if (!folder)
        return;
    m_program.store.setValue(keys + "folder"_L1, *folder);
    setFolder(*folder);
    m_run->setFocus();
}

void PhotoExportPanel::setFolder(const QString &folder)
{
    m_folder = folder;
    m_folderName->setText(folder.isEmpty() ? u"No folder is chosen yet"_s : QDir::toNativeSeparators(folder));
    setWords({});
    follow();
}

void PhotoExportPanel::follow()
{
    setUnavailable(m_run, isWalking()          ? u"The pictures are being copied"_s
                          : m_folder.isEmpty() ? KeepingLines::noFolder()
                                               : QString());
    setUnavailable(m_choose, isWalking() ? u"The pictures are being copied"_s : QString());
}

void PhotoExportPanel::run()
{
    m_program.store.setValue(keys + "smaller"_L1, m_smaller->isChecked());
    m_program.store.setValue(keys + "side"_L1, m_side->currentData());
    m_program.store.setValue(keys + "texts"_L1, m_texts->isChecked());
    showWalk(0, int(m_photos.size()));
    follow();
    AlbumExport::Wish wish;
    wish.records = m_photos;
    wish.folder = m_folder;
    wish.longerSide = m_smaller->isChecked() ? m_side->currentData().toInt() : 0;
    wish.hasTexts = m_texts->isChecked() && m_texts->isEnabled();
    wish.hasCoordinates = !m_noPlace->isChecked();
    wish.today = m_program.clock.today();
    m_export.start(wish);
}

void PhotoExportPanel::finish(const AlbumExport::Result &result)
{
    endWalk();
    follow();
    const QString line = KeepingLines::exported(result, m_folder);
    const bool isWhole = result.failed.isEmpty() && result.withoutTexts.isEmpty();
    setWords(line);
    if (!isWhole)
        m_program.dialogs.ask(m_window, KeepingLines::exportFaultsMessage(result));
    else if (!result.isDiskFull && !result.wasStopped)
        leave(); // which takes back what was said before
    emit said(line);
}

void PhotoExportPanel::stopWalk()
{
    m_export.stop();
}
