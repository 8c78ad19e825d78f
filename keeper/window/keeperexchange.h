// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/window/keeperdesk.h"

#include <QObject>

class KeeperImportPanel;
class KeeperPane;
class QAction;
class QMenu;

/// What comes into the keeper from other programs' files, and what leaves it for them.
class KeeperExchange final : public QObject
{
    Q_OBJECT
public:
    KeeperExchange(const KeeperDesk &desk, KeeperPane &pane, QObject *parent);

    void addCommands(QMenu *utilities);
    QAction *importCommand() const { return m_import; }
    /// The keeper is locked: nothing of a file stays behind.
    void forget();

signals:
    void said(const QString &line);
    void progressed(int done, int total);
    /// Asks about what was typed; the answer comes back through `isFree`.
    void replacing(bool *isFree);

private:
    void importFile();
    void exportChosen();

    KeeperDesk m_desk;
    KeeperPane &m_pane;
    KeeperImportPanel *m_panel = nullptr;
    QAction *m_import = nullptr;
};
