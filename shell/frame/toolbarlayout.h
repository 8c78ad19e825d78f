// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QStringList>

class FlowToolBar;
class QAction;
struct Program;

/// The layout of one toolbar: which of its actions stand on it and in which order. It is kept in the user's
/// settings store as a list of the actions' object names under section "User1"; the main menu's top toolbar
/// uses key "Toolbar1", another window's its own name behind it ("Toolbar1ADDBKVIEW").
class ToolbarLayout : public QObject
{
    Q_OBJECT
public:
    static constexpr auto separatorName = "separator";

    /// `storeKey`: "Toolbar1" or the like, without its section. `actions`: everything that can stand on the
    /// bar, in default order; `defaults`: the object names shown by default (with `separatorName` between
    /// groups).
    ToolbarLayout(Program &program, FlowToolBar *bar, const QString &storeKey, QList<QAction *> actions,
                  QStringList defaults);

    /// Puts the stored layout on the bar; the default one when none is stored or it names no action that
    /// exists.
    void restore();
    QStringList shown() const;
    /// Changes the bar at once and saves the layout. False when that was refused: it holds for this run.
    [[nodiscard]] bool setShown(const QStringList &names);
    [[nodiscard]] bool reset();

    const QList<QAction *> &actions() const { return m_actions; }
    const QStringList &defaults() const { return m_defaults; }

    /// Actions of functions that only other editions have: the customizer offers them when it is asked to.
    void setOfOtherEditions(const QStringList &names) { m_ofOtherEditions = names; }
    const QStringList &ofOtherEditions() const { return m_ofOtherEditions; }

    /// The action of this object name; null when there is none.
    QAction *action(const QString &name) const;

signals:
    void changed();

private:
    void show(const QStringList &names);

    Program &m_program;
    FlowToolBar *m_bar;
    QString m_storeKey;
    QList<QAction *> m_actions;
    QStringList m_defaults;
    QStringList m_ofOtherEditions;
};
