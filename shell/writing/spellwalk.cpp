// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/writing/spellwalk.h"

#include "shell/writing/spelling.h"

#include <ranges>
#include <tuple>
#include <utility>

SpellWalk::SpellWalk(Spelling &spelling, std::vector<WalkedText> texts)
    : m_spelling(spelling)
    , m_texts(std::move(texts))
{
    goOn(0, 0);
}

/// To the first wrong word that begins at `from` of this text or later.
void SpellWalk::goOn(std::size_t text, qsizetype from)
{
    for (; text < m_texts.size(); ++text, from = 0) {
        for (const WordPlace &word : m_spelling.wrongWords(m_texts[text].text)) {
            if (word.at >= from) {
                m_text = text;
                m_place = word;
                return;
            }
        }
    }
    m_text = m_texts.size();
    m_place = {};
}

WalkedText SpellWalk::replace(std::size_t text, QString by, Step &step)
{
    step.before.emplace_back(text, std::exchange(m_texts[text].text, std::move(by)));
    return m_texts[text];
}

std::vector<WalkedText> SpellWalk::change(const QString &by)
{
    Step step{m_text, m_place};
    QString changed = text().text;
    changed.replace(m_place.at, m_place.length, by);
    std::vector<WalkedText> texts{replace(m_text, changed, step)};
    m_steps.push_back(std::move(step));
    goOn(m_text, m_place.at + by.size());
    return texts;
}

std::vector<WalkedText> SpellWalk::changeAll(const QString &by)
{
    Step step{m_text, m_place};
    const QString wrong = word();
    std::vector<WalkedText> changed;
    for (std::size_t i = 0; i < m_texts.size(); ++i) {
        QString text = m_texts[i].text;
        const std::vector<WordPlace> words = WordBreaks::checkedWords(text);
        for (auto word = words.rbegin(); word != words.rend(); ++word) {
            if (QStringView(text).sliced(word->at, word->length) == wrong)
                text.replace(word->at, word->length, by);
        }
        if (text != m_texts[i].text)
            changed.push_back(replace(i, text, step));
    }
    m_steps.push_back(std::move(step));
    goOn(m_text, m_place.at);
    return changed;
}

void SpellWalk::ignore()
{
    const QString wrong = word();
    m_spelling.ignore(wrong);
    m_steps.push_back({.text = m_text, .place = m_place, .ignored = wrong});
    goOn(m_text, m_place.end());
}

bool SpellWalk::addWord()
{
    const QString wrong = word();
    const bool isSaved = m_spelling.addOwnWord(wrong);
    m_steps.push_back({.text = m_text, .place = m_place, .added = wrong});
    goOn(m_text, m_place.end());
    return isSaved;
}

std::vector<WalkedText> SpellWalk::undo()
{
    const Step step = std::move(m_steps.back());
    m_steps.pop_back();
    std::vector<WalkedText> changed;
    for (const auto &[text, before] : step.before) {
        m_texts[text].text = before;
        changed.push_back(m_texts[text]);
    }
    if (!step.ignored.isEmpty())
        m_spelling.heed(step.ignored);
    if (!step.added.isEmpty())
        std::ignore = m_spelling.removeOwnWord(step.added);
    m_text = step.text;
    m_place = step.place;
    return changed;
}
