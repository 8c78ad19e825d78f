// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/writing/wordbreaks.h"

#include <QSyntaxHighlighter>

#include <functional>

/// Underlines wrong words in a text of several lines, each line when it changes.
class SpellHighlighter final : public QSyntaxHighlighter
{
    Q_OBJECT
public:
    /// What is wrong in a line that begins at a place of the text.
    using Wrong = std::function<std::vector<WordPlace>(const QString &line, qsizetype begin)>;

    SpellHighlighter(QTextDocument *document, Wrong wrong);

    void setColor(const QColor &color) { m_color = color; }

protected:
    void highlightBlock(const QString &line) override;

private:
    Wrong m_wrong;
    QColor m_color;
};
