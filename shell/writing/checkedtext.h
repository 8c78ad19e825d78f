// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/writing/checkedbox.h"
#include "shell/writing/spellhighlighter.h"

#include <QPointer>
#include <QTextBlock>

class QPlainTextEdit;

/// Spelling in a box of several lines.
class CheckedText final : public CheckedBox
{
    Q_OBJECT
public:
    /// `styles` are what the lines have besides the marks.
    CheckedText(Writing &writing, QPlainTextEdit *box, LineStyles styles = {});
    ~CheckedText() override;

    /// The box has another document from now on.
    void followDocument();

    QStringList marked() const override;

protected:
    Line lineAt(qsizetype place) const override;
    qsizetype cursor() const override;
    qsizetype placeUnder(QPoint point) const override;
    bool isLocked() const override;
    bool replace(const WordPlace &word, const QString &by) override;
    void takeBack(qsizetype place) override;
    QMenu *usualMenu() const override;
    void mark() override;
    void markAtCursor() override;

private:
    void letGo();
    std::vector<WordPlace> wrongWords(const QString &line, qsizetype begin) const;
    void noteChange(int place, int removed, int added);
    void moved();

    QPlainTextEdit *m_text;
    LineStyles m_styles;
    QPointer<SpellHighlighter> m_marks; ///< goes with the text
    QTextBlock m_typedIn;               ///< the line in which a word was not marked, since it was being typed
    bool m_isTyped = false;
    bool m_isReplacing = false;
};
