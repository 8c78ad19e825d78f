// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/taskpanel.h"
#include "shell/writing/otherwords.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QTableWidget;
class Writing;

/// "Thesaurus": the meanings of a word, the words for the chosen one, and the way from word to word.
class ThesaurusPanel final : public TaskPanel
{
    Q_OBJECT
public:
    explicit ThesaurusPanel(Writing &writing, QWidget *parent = nullptr);

    /// Looks up `word`, which stands in a text.
    void begin(const QString &word);
    /// Shows nothing any more.
    void forget();

signals:
    /// This is to stand in place of the word.
    void chosen(const QString &by);

private:
    QWidget *makeWork();
    void makeButtons();
    void look(const QString &word);
    void lookUp();
    void goBack();
    void show();
    void showWords();
    void showFound();
    void refreshButtons();
    const Meaning *meaning() const;

    Writing &m_writing;
    QString m_asked; ///< the word in the text
    OtherWordsFound m_found;
    struct Step {
        QString word;
        int meaning; ///< the rows that were chosen of what was found
        int other;
    };
    QList<Step> m_before; ///< looked up on the way here, the last at the end
    QString m_now;
    QLabel *m_word;
    QLabel *m_words;
    QListWidget *m_meanings;
    QTableWidget *m_others;
    QLineEdit *m_by;
    struct {
        QPushButton *back, *lookUp, *replace, *close;
    } m_buttons{};
};
