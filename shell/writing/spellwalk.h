// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/writing/wordbreaks.h"

#include <QString>

#include <optional>
#include <vector>

class Spelling;

/// One of the texts that a walk through the spelling goes through.
struct WalkedText {
    int id = 0;    ///< the window's own number for it
    QString where; ///< for the eyes: "Shopping"
    QString text;

    bool operator==(const WalkedText &) const = default;
};

/// A walk from one wrong word to the next, through the texts of a window. What is done on the way can be
/// taken back, the last first.
class SpellWalk
{
public:
    /// Stands at the first wrong word.
    SpellWalk(Spelling &spelling, std::vector<WalkedText> texts);

    /// Whether there is no wrong word any more.
    bool isAtEnd() const { return m_text >= m_texts.size(); }
    /// The text in which the walk stands; not at the end.
    const WalkedText &text() const { return m_texts[m_text]; }
    WordPlace place() const { return m_place; }
    QString word() const { return text().text.mid(m_place.at, m_place.length); }

    // What is done about the word. Each goes on to the next one, and returns the texts that changed.
    std::vector<WalkedText> change(const QString &by);
    /// The same wherever the word stands, as it is written here.
    std::vector<WalkedText> changeAll(const QString &by);
    /// The word counts as right from here on.
    void ignore();
    /// The word is one of the household's own. False where that could not be saved.
    [[nodiscard]] bool addWord();

    bool mayUndo() const { return !m_steps.empty(); }
    /// Takes the last of them back, stands where it was done, and returns the texts that changed.
    std::vector<WalkedText> undo();

private:
    struct Step {
        std::size_t text;
        WordPlace place;
        std::vector<std::pair<std::size_t, QString>> before{}; ///< texts by their place among them
        QString ignored{};
        QString added{};
    };

    void goOn(std::size_t text, qsizetype from);
    WalkedText replace(std::size_t text, QString by, Step &step);

    Spelling &m_spelling;
    std::vector<WalkedText> m_texts;
    std::size_t m_text = 0;
    WordPlace m_place;
    std::vector<Step> m_steps;
};
