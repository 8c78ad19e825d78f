// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/journaldamage.h"

#include "journal/model/journal.h"
#include "journal/window/seallines.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/controls/taskpanel.h"
#include "shell/core/dates.h"
#include "shell/frame/commands.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"
#include "shell/program/program.h"

#include <QListWidget>
#include <QMenu>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

JournalDamage::JournalDamage(const JournalDesk &desk, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
{}

void JournalDamage::makePanel()
{
    m_panel = new TaskPanel(u"damagePanel"_s, u"Damaged Records"_s);
    auto *content = new QWidget(m_panel);
    auto *rows = new QVBoxLayout(content);
    rows->setContentsMargins({});
    rows->setSpacing(8);
    QLabel *words = makeQuietLabel(SealLines::damageWords(), content);
    words->setWordWrap(true);
    rows->addWidget(words);
    m_list = named(new QListWidget(content), u"damageList"_s);
    m_list->setAccessibleName(u"Damaged records"_s);
    setListRows(m_list);
    rows->addWidget(m_list, 1);
    m_panel->setWork(content);
    m_panel->setFocusProxy(m_list);
    QPushButton *show = m_panel->addButton(u"showDamaged"_s, u"Show the &Day"_s, ButtonKind::Main);
    m_panel->setLeaveButton(u"damageClose"_s, u"C&lose"_s);
    connect(show, &QPushButton::clicked, this, &JournalDamage::goToChosen);
    connect(m_list, &QListWidget::itemActivated, this, &JournalDamage::goToChosen);
    m_desk.views.addPanel(m_panel);
}

void JournalDamage::addCommand(QMenu *utilities)
{
    m_desk.commands.add(
        utilities, u"mUDamage"_s, u"&Damaged Records..."_s, [this] { open(); },
        [this] {
            if (QString none = m_desk.whyNone(); !none.isEmpty())
                return none;
            return rows().isEmpty() ? SealLines::nothingDamaged() : QString();
        });
}

/// Of the years read so far.
QList<JournalDamage::Row> JournalDamage::rows() const
{
    QList<Row> rows;
    Journal &journal = m_desk.journal;
    for (const int year : journal.years()) {
        if (!journal.isRead(year))
            continue;
        for (const SealedDamage &damage : journal.year(year).damage) {
            const QDate date = damage.label.date;
            rows.append({date.isValid() ? date : QDate(year, 1, 1),
                         SealLines::damage(damage, year, m_desk.program.state.dateStyle)});
        }
    }
    return rows;
}

QString JournalDamage::summary() const
{
    const QList<Row> rows = this->rows();
    return rows.isEmpty() ? QString() : SealLines::damaged(int(rows.size()), rows.first().words);
}

QString JournalDamage::wordsOf(QDate date) const
{
    if (!date.isValid() || !m_desk.journal.isRead(date.year()))
        return {};
    for (const SealedDamage &damage : m_desk.journal.year(date.year()).damage) {
        if (damage.label.date == date)
            return SealLines::damage(damage, date.year(), m_desk.program.state.dateStyle);
    }
    return {};
}

void JournalDamage::open()
{
    if (!m_panel)
        makePanel();
    m_list->clear();
    for (const Row &row : rows()) {
        auto *item = new QListWidgetItem(row.words, m_list);
        item->setData(Qt::UserRole, row.date);
    }
    m_list->setCurrentRow(0);
    m_desk.window.closePreview();
    m_desk.views.open(m_panel);
    m_panel->setFocus();
}

void JournalDamage::goToChosen()
{
    if (const QListWidgetItem *item = m_list->currentItem())
        m_desk.goTo(item->data(Qt::UserRole).toDate());
}

void JournalDamage::forget()
{
    if (m_list)
        m_list->clear();
}
