// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/writing/checkedbox.h"
#include "shell/writing/spellingtools.h"

class ThesaurusPanel;

/// The command "Thesaurus" of a window with its panel: for the word at the cursor of a checked box, or the
/// one whose menu is open.
class ThesaurusTools final : public QObject
{
    Q_OBJECT
public:
    ThesaurusTools(Writing &writing, QWidget *window);

    /// Adds the command to the window's menu.
    QAction *addTo(QMenu *menu, const SpellingTools::AddCommand &add);
    /// It stands over the work while it is open.
    TaskPanel *panel() const;
    /// Lets go of the word and of what was found.
    void forget();

signals:
    /// The panel is to be brought to the front.
    void opened(QWidget *panel);
    /// A sentence for the status bar.
    void said(const QString &line);

private:
    void askAtCursor();
    void open(CheckedBox *box, const AskedWord &asked);
    void replace(const QString &by);
    void goOnWriting();

    Writing &m_writing;
    ThesaurusPanel *m_panel;
    QPointer<CheckedBox> m_box;
    AskedWord m_asked;
};
