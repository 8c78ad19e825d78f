// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPlainTextDocumentLayout>
#include <QTextBlock>

class QTextLine;

/// Lays out a plain text in which what goes over several lines hangs: its further lines stand in.
class HangingText : public QPlainTextDocumentLayout
{
public:
    explicit HangingText(QTextDocument *document);

    QRectF blockBoundingRect(const QTextBlock &block) const override;

protected:
    /// How far the further lines of a block stand in, in pixels; nothing where that is none of the width.
    virtual double insetOf(const QTextBlock &block, const QTextLine &first) const = 0;

private:
    bool hang(QTextBlock block, QTextLayout &layout) const;
};
