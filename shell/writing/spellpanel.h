// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/taskpanel.h"
#include "shell/writing/spellwalk.h"

#include <optional>

class QLabel;
class QListWidget;
class QPlainTextEdit;
class Writing;

/// "Spelling": leads from one wrong word to the next, and offers what to do about it.
class SpellPanel final : public TaskPanel
{
    Q_OBJECT
public:
    explicit SpellPanel(Writing &writing, QWidget *parent = nullptr);

    /// Begins at the first wrong word of `texts`. False when there is none.
    bool begin(std::vector<WalkedText> texts);
    /// Lets go of the texts.
    void forget();

signals:
    /// A text that is to be put in place of the one with its number.
    void changed(const WalkedText &text);
    /// A sentence for the status bar.
    void said(const QString &line);

protected:
    void setLow(bool isLow) override;

private:
    QWidget *makeWork();
    void makeButtons();
    void show();
    void showContext();
    void offerSuggestions();
    void refreshButtons();
    void change(bool everywhere);
    void ignore();
    void addWord();
    void undo();
    void tell(const std::vector<WalkedText> &texts);

    Writing &m_writing;
    std::optional<SpellWalk> m_walk;
    QLabel *m_where;
    QLabel *m_word;
    QPlainTextEdit *m_context;
    FieldBox *m_by;
    QListWidget *m_suggestions;
    QVBoxLayout *m_parts = nullptr;
    struct {
        QPushButton *change, *changeAll, *ignore, *add, *undo, *close;
    } m_buttons{};
};
