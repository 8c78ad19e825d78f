// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/window/restorepanel.h"

#include "backup/model/backuplines.h"
#include "backup/model/holdings.h"
#include "backup/window/householdsources.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/controls/tablework.h"
#include "shell/core/dates.h"
#include "shell/frame/workviews.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QTableView>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

QString effectWords(const RestoreItem &item)
{
    switch (item.effect) {
    case RestoreEffect::New:
        return u"New"_s;
    case RestoreEffect::ByOlder:
        return u"Replaced by an older one"_s;
    case RestoreEffect::ByNewer:
        return u"Replaced by a newer one"_s;
    case RestoreEffect::Beside:
        return u"Into Pictures, beside the one here"_s;
    case RestoreEffect::Same:
        return u"The same here"_s;
    case RestoreEffect::OnlyHere:
        return u"Only here, stays"_s;
    case RestoreEffect::Refused:
        return u"Not restored"_s;
    }
    Q_UNREACHABLE();
}

constexpr int leastWidth = 130;

enum Column { File, FunctionName, WhatHappens, InBackup, Here };
constexpr int widthForFunction = 880;
constexpr int widthForHere = 740;

std::vector<TableColumn<RestoreItem>> columns(const DateStyle &style)
{
    const auto when = [style](const QDateTime &time) {
        const QDateTime local = time.toLocalTime();
        return local.isValid()
                   ? QString(Dates::shortWithYear(local.date(), style) + u", "_s + local.toString(u"hh:mm"_s))
                   : QString();
    };
    return {{u"File"_s, Qt::AlignLeft, [](const RestoreItem &item) { return item.file.name; }},
            {u"Function"_s, Qt::AlignLeft,
             [](const RestoreItem &item) { return HouseholdSources::title(item.function); }},
            {u"What happens"_s, Qt::AlignLeft, effectWords},
            {u"In the backup"_s, Qt::AlignLeft,
             [when](const RestoreItem &item) {
                 return item.effect == RestoreEffect::OnlyHere ? QString() : when(item.file.changed);
             }},
            {u"Here"_s, Qt::AlignLeft, [when](const RestoreItem &item) { return when(item.changedHere); }}};
}

/// "12 new, 3 replaced, 40 the same, 2 only here".
QString summary(const QList<RestoreItem> &items)
{
    struct Count {
        const char *words;
        std::array<RestoreEffect, 2> effects;
    };
    static constexpr std::array counts{
        Count{"new", {RestoreEffect::New, RestoreEffect::Beside}},
        Count{"replaced by an older one", {RestoreEffect::ByOlder, RestoreEffect::ByOlder}},
        Count{"replaced by a newer one", {RestoreEffect::ByNewer, RestoreEffect::ByNewer}},
        Count{"the same", {RestoreEffect::Same, RestoreEffect::Same}},
        Count{"only here", {RestoreEffect::OnlyHere, RestoreEffect::OnlyHere}}};
    QStringList parts;
    for (const Count &count : counts) {
        const auto number = std::ranges::count_if(items, [&count](const RestoreItem &item) {
            return item.effect == count.effects[0] || item.effect == count.effects[1];
        });
        if (number > 0)
            parts.append(BackupLines::number(number) + u' ' + QLatin1StringView(count.words));
    }
    if (std::ranges::none_of(items, &RestoreItem::isWritten))
        return parts.join(u", "_s) + u". Nothing is to be restored."_s;
    qint64 bytes = 0;
    for (const RestoreItem &item : items)
        bytes += item.isWritten() ? item.file.size : 0;
    return parts.join(u", "_s) + u". "_s + BackupLines::size(bytes) +
           u" to be restored. What is only here stays."_s;
}

} // namespace

RestorePanel::RestorePanel(const BackupDesk &desk, QWidget *parent)
    : TaskPanel(u"restorePanel"_s, {}, parent)
    , m_desk(desk)
    , m_functions(named(new QComboBox(this), u"restoreFunctions"_s))
    , m_password(named(new QCheckBox(u"The &password, too"_s, this), u"restorePassword"_s))
    , m_words(named(makeQuietLabel({}, this), u"restoreSummary"_s))
    , m_model(new RowsModel<RestoreItem>(columns(desk.program.state.dateStyle), this))
    , m_view(named(new QTableView(this), u"restoreFiles"_s))
    , m_now(nullptr)
    , m_folder(nullptr)
{
    auto *work = new QWidget(this);
    auto *rows = new QVBoxLayout(work);
    rows->setContentsMargins({});
    rows->setSpacing(12);
    auto *choice = new QHBoxLayout;
    choice->setSpacing(12);
    choice->addWidget(makeFieldLabel(u"&What is restored"_s, m_functions, work));
    choice->addWidget(m_functions);
    choice->addSpacing(12);
    choice->addWidget(m_password);
    choice->addStretch(1);
    rows->addLayout(choice);
    m_words->setWordWrap(true);
    m_view->setModel(m_model);
    rows->addWidget(new TableWork(m_words, m_view, u"What restoring does, file by file"_s, work), 1);
    constexpr int measured = 50; // rows: there may be thousands
    m_view->horizontalHeader()->setResizeContentsPrecision(measured);
    m_view->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    // The names of pictures are long: they leave room for what is said of them.
    m_view->horizontalHeader()->setStretchLastSection(false);
    m_view->horizontalHeader()->setMinimumSectionSize(TypeScale::wide(leastWidth));
    m_view->horizontalHeader()->setSectionResizeMode(File, QHeaderView::Stretch);
    setWork(work);
    m_folder = addButton(u"restoreFolder"_s, u"Into &Another Folder..."_s, ButtonKind::Plain, Side::Left);
    m_now = addButton(u"restoreNow"_s, u"&Restore Now"_s, ButtonKind::Main);
    setLeaveButton(u"restoreCancel"_s, u"&Cancel"_s);
    setFocusProxy(m_functions);
    connect(m_functions, &QComboBox::currentIndexChanged, this, &RestorePanel::follow);
    connect(m_password, &QCheckBox::toggled, this, &RestorePanel::follow);
    connect(m_now, &QPushButton::clicked, this, &RestorePanel::restoreWanted);
    connect(m_folder, &QPushButton::clicked, this, &RestorePanel::folderWanted);
}

/// A narrow window tells rather what happens than whose a file is, and when the one here was changed.
void RestorePanel::resizeEvent(QResizeEvent *event)
{
    TaskPanel::resizeEvent(event);
    m_view->setColumnHidden(FunctionName, width() < TypeScale::wide(widthForFunction));
    m_view->setColumnHidden(Here, width() < TypeScale::wide(widthForHere));
}

void RestorePanel::show(const QString &title, const QList<RestoreItem> &items, const QString &function,
                        bool hasPasswordHere)
{
    setTitle(title);
    m_items = items;
    const bool hasFile = std::ranges::any_of(items, [](const RestoreItem &item) {
        return item.function == Holdings::password && item.isWritten();
    });
    m_mayForce = hasFile && !hasPasswordHere;
    m_password->setVisible(hasFile);
    m_password->setChecked(hasFile && !hasPasswordHere && function.isEmpty());
    fillFunctions(function);
    m_desk.views.open(this);
    setFocus();
}

void RestorePanel::fillFunctions(const QString &function)
{
    {
        const QSignalBlocker quiet(m_functions);
        m_functions->clear();
        m_functions->addItem(u"Everything"_s, QString());
        for (const RestoreItem &item : std::as_const(m_items)) {
            if (item.effect != RestoreEffect::OnlyHere && item.function != Holdings::password &&
                m_functions->findData(item.function) < 0)
                m_functions->addItem(HouseholdSources::title(item.function), item.function);
        }
        m_functions->setCurrentIndex(std::max(0, m_functions->findData(function)));
    }
    follow();
}

bool RestorePanel::isAll() const
{
    return m_functions->currentIndex() <= 0;
}

bool RestorePanel::isPasswordChosen() const
{
    return m_password->isChecked();
}

QList<RestoreItem> RestorePanel::chosen() const
{
    const QString key = m_functions->currentData().toString();
    const std::optional<Function> function = HouseholdSources::function(key);
    const FunctionEntry *entry = function ? m_desk.program.functions.entry(*function) : nullptr;
    const bool hasPictures = entry && entry->pictures;
    QList<RestoreItem> items;
    for (const RestoreItem &item : m_items) {
        // Nobody here may know any more whose a picture is: it comes with each function that has some.
        const bool isPerhapsIts = hasPictures && item.isPicture && item.effect == RestoreEffect::New &&
                                  item.function == Holdings::others;
        if (item.function != Holdings::password && (isAll() || item.function == key || isPerhapsIts))
            items.append(item);
    }
    return items;
}

void RestorePanel::follow()
{
    QList<RestoreItem> items = chosen();
    for (const RestoreItem &item : std::as_const(m_items)) {
        if (item.function == Holdings::password && m_password->isChecked())
            items.prepend(item);
    }
    const bool isForced = m_mayForce && !m_password->isChecked();
    m_words->setText(
        summary(items) +
        (isForced ? u"\nThe password comes along all the same if it guards any of it."_s : QString()));
    const auto place = [](const RestoreItem &item) {
        return item.isWritten() ? 0 : item.effect == RestoreEffect::Same ? 2 : 1;
    };
    std::ranges::stable_sort(items, {}, place); // what changes comes first
    const bool isAnything = std::ranges::any_of(items, &RestoreItem::isWritten);
    QString reason = isAnything ? m_desk.program.folder.whyReadOnly() : u"All of it is the same here"_s;
    setUnavailable(m_now, reason);
    m_model->setRows({items.begin(), items.end()});
}
