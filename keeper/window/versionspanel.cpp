// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/versionspanel.h"

#include "keeper/model/keeper.h"
#include "keeper/window/entryform.h"
#include "keeper/window/secretbox.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/controls/scrollpart.h"
#include "shell/core/dates.h"
#include "shell/program/program.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QLocale>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int listWidth = 240;
} // namespace

VersionsPanel::VersionsPanel(const Program &program, const Keeper &keeper, QWidget *window, QWidget *parent)
    : TaskPanel(u"versionsPanel"_s, u"Earlier Versions"_s, parent)
    , m_program(program)
    , m_keeper(keeper)
    , m_list(named(new QListWidget(this), u"versionsList"_s))
    , m_form(new EntryForm(program, window))
    , m_back(nullptr)
{
    auto *content = new QWidget(this);
    auto *row = new QHBoxLayout(content);
    row->setContentsMargins({});
    row->setSpacing(16);
    setListRows(m_list);
    m_list->setAccessibleName(u"Earlier versions, the latest first"_s);
    m_list->setFixedWidth(boxWidth(u"Wed, 28 Nov 2026  12:58 PM"_s, listWidth));
    row->addWidget(m_list);
    row->addWidget(new ScrollPart(m_form, content), 1);
    setWork(content);
    setFocusProxy(m_list);
    m_form->setLocked(true);
    m_back = addButton(u"bringBackVersion"_s, u"&Bring Back"_s, ButtonKind::Main);
    setLeaveButton(u"versionsClose"_s, u"C&lose"_s);
    connect(m_list, &QListWidget::currentRowChanged, this, &VersionsPanel::showVersion);
    connect(m_form, &EntryForm::copyWanted, this, &VersionsPanel::copyWanted);
    connect(m_back, &QPushButton::clicked, this, [this] {
        const auto entry = m_keeper.entry(m_id, m_list->currentItem()->data(Qt::UserRole).toInt());
        leave();
        if (entry)
            emit chosen(*entry);
    });
}

bool VersionsPanel::start(const QByteArray &id)
{
    forget();
    m_id = id;
    for (const KeeperVersion &version : m_keeper.versions(id)) {
        const QDateTime time = version.time.toLocalTime();
        auto *item = new QListWidgetItem(Dates::statusText(time.date(), m_program.state.dateStyle) + u"  "_s +
                                             QLocale::c().toString(time.time(), u"h:mm AP"_s),
                                         m_list);
        item->setData(Qt::UserRole, version.number);
    }
    m_list->setCurrentRow(0);
    return m_list->count() > 0;
}

void VersionsPanel::forget()
{
    m_list->clear();
    m_form->load({});
    m_id.clear();
}

void VersionsPanel::showVersion()
{
    const QListWidgetItem *item = m_list->currentItem();
    const auto entry = item ? m_keeper.entry(m_id, item->data(Qt::UserRole).toInt()) : std::nullopt;
    m_form->load(entry.value_or(KeeperEntry()));
    m_form->setLocked(true);
    setUnavailable(m_back, entry ? QString() : u"This version cannot be opened"_s);
}

void VersionsPanel::leave()
{
    forget();
    TaskPanel::leave();
}
