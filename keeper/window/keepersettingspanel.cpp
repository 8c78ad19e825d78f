// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/keepersettingspanel.h"

#include "keeper/model/keeper.h"
#include "keeper/window/clipboardguard.h"
#include "keeper/window/windowlines.h"
#include "shell/controls/minutesbox.h"

#include <QCheckBox>
#include <QSpinBox>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int numberWidth = 130;
constexpr int secondsStep = 10;
} // namespace

KeeperSettingsPanel::KeeperSettingsPanel(Keeper &keeper, QWidget *parent)
    : TaskPanel(u"keeperSettingsPanel"_s, u"Keeper Settings"_s, parent)
    , m_keeper(keeper)
    , m_minutes(named(new MinutesBox(this), u"lockMinutes"_s))
    , m_locksMinimised(
          named(new QCheckBox(u"Lock it when its &window is minimised"_s, this), u"lockMinimised"_s))
    , m_seconds(named(new QSpinBox(this), u"clipboardSeconds"_s))
    , m_tellsExpiry(
          named(new QCheckBox(u"The card on the main menu may tell when something ex&pires"_s, this),
                u"tellsExpiry"_s))
{
    m_seconds->setRange(ClipboardGuard::leastSeconds, ClipboardGuard::mostSeconds);
    m_seconds->setSingleStep(secondsStep);
    m_seconds->setSuffix(u" seconds"_s);
    setContent(makeChoices());
    setFocusProxy(m_minutes);
    QPushButton *saving = addButton(u"saveSettings"_s, u"&Save"_s, ButtonKind::Main);
    setLeaveButton(u"settingsClose"_s, u"C&lose"_s);
    connect(saving, &QPushButton::clicked, this, &KeeperSettingsPanel::save);
}

QWidget *KeeperSettingsPanel::makeChoices()
{
    auto *content = new QWidget(this);
    auto *rows = new QVBoxLayout(content);
    rows->setContentsMargins({});
    rows->setSpacing(8);
    for (QSpinBox *box : {m_minutes, m_seconds}) {
        box->setParent(content);
        box->setFixedWidth(boxWidth(u"120 seconds"_s, numberWidth));
    }
    rows->addWidget(makeHeading(u"Lock"_s, content));
    rows->addLayout(labelled(u"Lock the keeper after so long without key or mouse"_s, m_minutes));
    rows->addWidget(m_locksMinimised);
    rows->addSpacing(12);
    rows->addWidget(makeHeading(u"Clipboard"_s, content));
    rows->addLayout(labelled(u"Empty the clipboard after"_s, m_seconds));
    rows->addSpacing(12);
    rows->addWidget(makeHeading(u"Main Menu"_s, content));
    rows->addWidget(m_tellsExpiry);
    auto *hint = makeQuietLabel(KeeperWindowLines::tellsExpiryHint(), content);
    hint->setWordWrap(true);
    rows->addWidget(hint);
    rows->addStretch(1);
    return content;
}

void KeeperSettingsPanel::start()
{
    const KeeperSettings settings = m_keeper.settings();
    m_minutes->setValue(settings.lockMinutes);
    m_locksMinimised->setChecked(settings.locksMinimised);
    m_seconds->setValue(settings.clipboardSeconds);
    m_tellsExpiry->setChecked(settings.tellsExpiry);
}

void KeeperSettingsPanel::save()
{
    KeeperSettings settings = m_keeper.settings();
    settings.lockMinutes = m_minutes->value();
    settings.locksMinimised = m_locksMinimised->isChecked();
    settings.clipboardSeconds = m_seconds->value();
    settings.tellsExpiry = m_tellsExpiry->isChecked();
    if (!m_keeper.saveSettings(settings)) {
        emit said(KeeperWindowLines::notSaved());
        return;
    }
    emit settingsChanged();
    leave();
    emit said(KeeperWindowLines::saved());
}
