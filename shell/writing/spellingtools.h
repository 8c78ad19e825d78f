// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/writing/spellwalk.h"

#include <QAction>
#include <QKeySequence>
#include <QObject>

#include <functional>

class CorrectionPanel;
class QMenu;
class SpellPanel;
class TaskPanel;
class Writing;

/// The menu "Spelling" of a window with its two panels: the walk through its texts, and the table of
/// corrections.
class SpellingTools final : public QObject
{
    Q_OBJECT
public:
    /// How the window makes a command: with its name, caption, what it does, why it cannot be used, its key.
    using AddCommand =
        std::function<QAction *(QMenu *, const QString &, const QString &, std::function<void()>,
                                std::function<QString()>, const QKeySequence &)>;
    /// What the walk goes through, asked when it begins, and what a text of it becomes.
    struct Texts {
        std::function<std::vector<WalkedText>()> all;
        std::function<void(const WalkedText &)> change;
    };

    SpellingTools(Writing &writing, Texts texts, QWidget *window);

    /// Fills the window's menu.
    void addTo(QMenu *menu, const AddCommand &add);
    /// They stand over the work while they are open.
    QList<TaskPanel *> panels() const;
    /// Lets go of the texts of a walk.
    void forget();

signals:
    /// One of the panels is to be brought to the front.
    void opened(QWidget *panel);
    /// A sentence for the status bar.
    void said(const QString &line);

private:
    void walk();
    void openTable();
    void listLanguages(QMenu *menu);

    Writing &m_writing;
    Texts m_texts;
    SpellPanel *m_walk;
    CorrectionPanel *m_table;
    QList<QAction *> m_languages;
};
