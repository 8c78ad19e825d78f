// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/journallockpanel.h"

#include "journal/window/seallines.h"
#include "shell/controls/minutesbox.h"
#include "shell/look/theme.h"

#include <QCheckBox>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int widest = 560;
} // namespace

JournalLockPanel::JournalLockPanel(QWidget *parent)
    : TaskPanel(u"journalLockPanel"_s, u"When It Locks"_s, parent)
    , m_minutes(named(new MinutesBox(this), u"lockMinutes"_s))
    , m_minimised(named(new QCheckBox(u"Lock it when its &window is minimised"_s, this), u"lockMinimised"_s))
{
    auto *content = new QWidget(this);
    auto *rows = new QVBoxLayout(content);
    rows->setContentsMargins({});
    rows->setSpacing(12);
    rows->addLayout(labelled(u"Lock the journal after so long without key or mouse"_s, m_minutes));
    rows->addWidget(m_minimised);
    auto *hint = makeQuietLabel(SealLines::alsoLocks(), content);
    hint->setWordWrap(true);
    hint->setMaximumWidth(TypeScale::wide(widest));
    rows->addWidget(hint);
    rows->addStretch(1);
    setContent(content);
    setFocusProxy(m_minutes);
    QPushButton *saving = addButton(u"keepLock"_s, u"S&ave"_s, ButtonKind::Main);
    setLeaveButton(u"lockClose"_s, u"C&lose"_s);
    connect(saving, &QPushButton::clicked, this, &JournalLockPanel::accepted);
}

void JournalLockPanel::start(int minutes, bool isWhenMinimised)
{
    m_minutes->setValue(minutes);
    m_minimised->setChecked(isWhenMinimised);
}

int JournalLockPanel::minutes() const
{
    return m_minutes->value();
}

bool JournalLockPanel::isWhenMinimised() const
{
    return m_minimised->isChecked();
}
