// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/keeperentry.h"
#include "keeper/window/keeperdesk.h"

#include <QObject>
#include <QPointer>

class CheckupPanel;
class EntryWork;
class GeneratorPanel;
class KeeperPane;
class KeeperSettingsPanel;
class QMenu;
class SecretBox;
class TaskPanel;
class VersionsPanel;

/// The panels of the keeper that stand over the entry: making passwords, earlier versions, the settings.
class KeeperTools final : public QObject
{
    Q_OBJECT
public:
    KeeperTools(const KeeperDesk &desk, EntryWork &work, KeeperPane &pane, QObject *parent);

    void addVersionsCommand(QMenu *edit);
    void addViews(QMenu *view);
    void addGenerator(QMenu *utilities);
    void addSettings(QMenu *options);

    /// Makes a password for `box`.
    void makeFor(SecretBox *box);
    /// The keeper is locked: nothing of it stays behind in the panels.
    void forget();

signals:
    void said(const QString &line);
    void settingsChanged();
    /// Asks about what was typed; the answer comes back through `isFree`.
    void replacing(bool *isFree);

private:
    void openGenerator(SecretBox *box);
    void openVersions();
    void openCheckup();
    void openSettings();
    void bringBack(const KeeperEntry &version);
    void open(TaskPanel *panel);
    QString whyLocked() const;

    KeeperDesk m_desk;
    EntryWork &m_work;
    KeeperPane &m_pane;
    GeneratorPanel *m_generator = nullptr;
    VersionsPanel *m_versions = nullptr;
    CheckupPanel *m_checkup = nullptr;
    KeeperSettingsPanel *m_settings = nullptr;
    QPointer<SecretBox> m_box; ///< that a password is made for
};
