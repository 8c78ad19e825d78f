// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/keeperpages.h"
#include "keeper/window/keeperdesk.h"

#include <QByteArray>
#include <QList>
#include <QObject>

class KeeperPane;
class KeeperPrintPanel;
class PreviewPane;
class QCheckBox;
class QMenu;
class SheetPanel;

/// What of the keeper comes onto paper. A page is built only when it is looked at, with dots in place of
/// secrets until they are asked for beside it, and goes to the printer straight from memory.
class KeeperPrint final : public QObject
{
    Q_OBJECT
public:
    KeeperPrint(const KeeperDesk &desk, KeeperPane &pane, QObject *parent);

    void addPrint(QMenu *options);
    void addSheet(QMenu *utilities);

    /// The emergency sheet, with a code that was just made.
    void openSheet(const QString &code);
    /// The keeper is locked: no page is left.
    void forget();

signals:
    void said(const QString &line);
    /// Asks about what was typed; the answer comes back through `isFree`.
    void replacing(bool *isFree);
    void sheetLeft();

private:
    void openPanel();
    void showPages();
    void showSheet();
    void show(const std::function<Page(const PageContext &)> &builder, const QString &name);
    PreviewPane &discreetPreview();
    bool mayPrint();
    void notePrinted();
    QList<KeeperEntry> entriesOf(const QList<QByteArray> &ids) const;
    QString whyNothing() const;

    KeeperDesk m_desk;
    KeeperPane &m_pane;
    KeeperPrintPanel *m_panel = nullptr;
    SheetPanel *m_sheet = nullptr;
    QCheckBox *m_secrets = nullptr; ///< "Show Secrets", beside the page
    QList<QByteArray> m_shown;      ///< the entries on the pages
    QString m_name;                 ///< of what is shown
    bool m_isSheet = false;         ///< which always has what was typed for it
};
