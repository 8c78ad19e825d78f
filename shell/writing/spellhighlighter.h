// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/writing/wordbreaks.h"

#include <QSyntaxHighlighter>
#include <QTextLayout>

#include <functional>

/// How parts of a line are shown.
using LineStyles = std::function<QList<QTextLayout::FormatRange>(const QString &line)>;

/// Underlines wrong words in a text of several lines, each line when it changes, over the styles that the
/// line has of its own.
class SpellHighlighter final : public QSyntaxHighlighter
{
    Q_OBJECT
public:
    /// What is wrong in a line that begins at a place of the text.
    using Wrong = std::function<std::vector<WordPlace>(const QString &line, qsizetype begin)>;

    SpellHighlighter(QTextDocument *document, Wrong wrong, LineStyles styles = {});

    void setColor(const QColor &color) { m_color = color; }
    const QColor &color() const { return m_color; }

    /// A text with more characters is shown as it is: nobody wants to wait for its marks.
    static constexpr int mostMarked = 1'000'000;

protected:
    void highlightBlock(const QString &line) override;

private:
    void underline(const WordPlace &word);

    Wrong m_wrong;
    LineStyles m_styles;
    QColor m_color;
};
