// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/window/backupview.h"

#include "backup/model/setcheck.h"
#include "backup/window/backupoutline.h"
#include "backup/window/holdingsmodel.h"
#include "backup/window/householdsources.h"
#include "backup/window/placespane.h"
#include "backup/window/windowlines.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/controls.h"
#include "shell/controls/flowrow.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/controls/titleline.h"
#include "shell/core/settingskeys.h"
#include "shell/frame/commands.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 million = 1'000'000;

/// Disks as they are sold, in bytes.
struct DiskSize {
    qint64 bytes;
    const char *caption;
};
constexpr int narrowWidth = 560;
constexpr std::array sizes{DiskSize{0, "As much as it has room for"}, DiskSize{650 * million, "650 MB"},
                           DiskSize{4'700 * million, "4.7 GB"},       DiskSize{8'000 * million, "8 GB"},
                           DiskSize{16'000 * million, "16 GB"},       DiskSize{25'000 * million, "25 GB"},
                           DiskSize{32'000 * million, "32 GB"}};

} // namespace

BackupView::BackupView(const BackupDesk &desk, QWidget *parent)
    : TitledView(u"backUp"_s, parent)
    , m_desk(desk)
    , m_outline(new BackupOutline(desk.program, this))
    , m_model(new HoldingsModel(this))
    , m_words(named(makeQuietLabel({}, this), u"backUpWords"_s))
    , m_view(named(new QTableView(this), u"holdings"_s))
    , m_sizes(named(new QComboBox(this), u"diskSize"_s))
    , m_reminder(named(new QComboBox(this), u"reminder"_s))
    , m_seal(named(new QCheckBox(u"&Seal with a password"_s, this), u"sealSet"_s))
{
    m_words->setWordWrap(true);
    addContent(m_words);
    makeTable();
    auto *rows = new WholeRows(m_view, nullptr, this);
    rows->setGivesWay(true);
    addContent(rows, 1);
    addContent(makeOptions());
    setFocusProxy(m_view);
    connect(m_outline, &BackupOutline::known, this, [this] {
        m_model->setRows(m_outline->rows());
        replan();
    });
    connect(m_outline, &BackupOutline::planned, this, &BackupView::showPlan);
    connect(m_model, &HoldingsModel::chosenChanged, this, &BackupView::replan);
    connect(&desk.places, &PlacesPane::chosenChanged, this, &BackupView::replan);
    connect(m_seal, &QCheckBox::toggled, this, [this](bool isSealed) {
        m_model->setCopyOfAll(isSealed ? HouseholdSources::words(HouseholdSources::Copy::Sealed) : QString());
        replan();
    });
    connect(m_sizes, &QComboBox::activated, this, &BackupView::replan);
    connect(m_reminder, &QComboBox::activated, this, &BackupView::remind);
}

void BackupView::makeTable()
{
    m_view->setModel(m_model);
    setGridRows(m_view);
    m_view->setAccessibleName(u"What goes along"_s);
    QHeaderView *head = m_view->horizontalHeader();
    head->setSectionResizeMode(QHeaderView::ResizeToContents);
    head->setSectionResizeMode(HoldingsModel::Name, QHeaderView::Stretch);
    head->setStretchLastSection(false);
}

/// A narrow window tells rather who can read the copy than how many files it has.
void BackupView::resizeEvent(QResizeEvent *event)
{
    TitledView::resizeEvent(event);
    for (const int column : {HoldingsModel::Files, HoldingsModel::Pictures})
        m_view->setColumnHidden(column, width() < TypeScale::wide(narrowWidth));
}

QWidget *BackupView::makeOptions()
{
    auto *options = new QWidget(this);
    auto *row = new FlowRow(24, options);
    for (const DiskSize &size : sizes)
        m_sizes->addItem(QString::fromLatin1(size.caption), size.bytes);
    for (const int days : SettingsKeys::backupReminderDaysOffered)
        m_reminder->addItem(u"After %1 days"_s.arg(days), days);
    m_reminder->addItem(u"Never"_s, SettingsKeys::neverReminded);
    m_sizes->setAccessibleName(u"Use of each disk"_s);
    m_reminder->setAccessibleName(u"Remind me"_s);
    const auto add = [&](const QString &caption, QComboBox *box) {
        auto *part = new QWidget(options);
        QVBoxLayout *column = labelled(caption, box);
        column->setContentsMargins({});
        part->setLayout(column);
        row->addWidget(part);
    };
    add(u"Use of each disk"_s, m_sizes);
    add(u"Remind me"_s, m_reminder);
    row->addWidget(m_seal);
    return options;
}

void BackupView::choose(const QString &key)
{
    m_model->choose(key.isEmpty() ? QStringList() : QStringList{key});
}

QStringList BackupView::chosen() const
{
    return m_model->chosen();
}

std::optional<DiskRoom> BackupView::room() const
{
    const qint64 bytes = m_sizes->currentData().toLongLong();
    if (bytes == 0)
        return std::nullopt;
    DiskRoom room;
    room.bytes = bytes;
    return room;
}

bool BackupView::isToBeSealed() const
{
    return m_seal->isChecked();
}

void BackupView::look()
{
    const Program &program = m_desk.program;
    m_news = BackupNews::of(program.folder, program.settings);
    m_desk.places.prefer(m_news.drive);
    m_reminder->setCurrentIndex(m_reminder->findData(m_news.remindDays));
    titleLine().setTitle(m_news.line(program.clock.today()));
    setUnavailable(m_reminder, program.folder.whyReadOnly());
    m_outline->look();
}

/// Its parts follow by themselves.
void BackupView::refresh() {}

void BackupView::replan()
{
    const std::optional<BackupPlaceRow> place = m_desk.places.chosen();
    m_outline->plan(chosen(), place ? place->drive.folder : QString(), room(),
                    isToBeSealed() ? BackupOutlook::Form::Sealed : BackupOutlook::Form::Plain);
}

void BackupView::showPlan()
{
    const std::optional<BackupPlaceRow> place = m_desk.places.chosen();
    m_words->setText(!place ? BackupWindowLines::noPlace()
                     : m_outline->outlook()
                         ? BackupWindowLines::plan(*m_outline->outlook(), place->drive.name)
                         : BackupWindowLines::looking(place->drive.name));
    const bool isDue =
        place && place->last && isTestDue(*place->last->record, m_desk.program.clock.now().toUTC());
    foot().setWords(isDue ? BackupWindowLines::testDue() : QString());
    m_desk.commands.refresh();
}

QString BackupView::whyNot() const
{
    const std::optional<BackupPlaceRow> place = m_desk.places.chosen();
    if (!place)
        return BackupWindowLines::noPlace();
    if (place->drive.isReadOnly)
        return BackupWindowLines::writeProtected(place->drive.name);
    if (m_outline->isKnown() && chosen().isEmpty())
        return BackupWindowLines::nothingChosen();
    return {};
}

void BackupView::remind()
{
    const bool isSaved = m_desk.program.settings.setNumber(SettingsKeys::backupReminderDays,
                                                           m_reminder->currentData().toInt());
    if (!isSaved)
        emit m_desk.program.changes.settingNotSaved();
    const Program &program = m_desk.program;
    m_news = BackupNews::of(program.folder, program.settings);
    titleLine().setTitle(m_news.line(program.clock.today()));
}
