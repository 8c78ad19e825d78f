// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/page.h"
#include "shell/pages/pagefont.h"

#include <QColor>
#include <QFont>
#include <QFontMetricsF>
#include <QPointF>

#include <array>
#include <map>

class QPainter;

/// One font of a printed page, measured and drawn in points. Inside it works at ten times the size, without
/// hinting and without any device, so that screen, picture, PDF and paper break lines alike.
class PageType
{
public:
    PageType(const QFont &font, double points, QColor color = Qt::black);

    /// Distance of two lines: 1.35 times the size, more for fonts that are taller than that.
    double lineHeight() const { return m_lineHeight; }
    /// Distance of the baseline from the top of the line.
    double baseline() const { return m_baseline; }
    double width(const QString &text) const;

    /// `text` cut into lines no wider than `width`: at words, and inside words that are wider than a line. At
    /// least one line, which may be empty.
    QStringList wrapped(const QString &text, double width) const;
    /// About the same for plain words, without shaping them, many times as fast: for what is laid out again
    /// and again until it fits. A line may end a little sooner.
    QStringList wrappedFast(const QString &text, double width) const;
    const QFont &font() const { return m_font; }
    /// How many times larger than in points `font` works.
    static constexpr double fine = 10;
    /// `text` on one line, without tabs and other control characters.
    static QString onOneLine(QString text);

    /// One line, ended by an ellipsis where it is wider than `width`.
    QString elided(const QString &line, double width) const;
    /// At most `most` of these lines; the last one kept takes up what follows, ended by an ellipsis.
    QStringList shortened(QStringList lines, qsizetype most, double width) const;

    /// Draws a line without wrapping; `top` is the upper left corner of its line height.
    void draw(QPainter &painter, QPointF top, const QString &line) const;
    /// Draws a line between `left` and `left + width`, aligned as told.
    void draw(QPainter &painter, QPointF top, double width, Qt::Alignment alignment,
              const QString &line) const;

private:
    bool surelyFits(const QString &text, double width) const;
    bool isPlain(const QString &text) const;
    double advance(QChar character) const { return double(m_advances[character.unicode()]); }

    QFont m_font;
    QFontMetricsF m_metrics;
    QColor m_color;
    double m_lineHeight;
    double m_baseline;
    /// Widths of the code page's simple characters in points: most cells are found to fit without shaping
    /// them.
    std::array<float, 256> m_advances;
};

/// The fonts of a page: the given one for the body, the program's own for title and closing lines.
struct PageTypes {
    explicit PageTypes(const PageFont &font);
    /// The body in another size than the font's own.
    PageTypes(const PageFont &font, double points);

    const PageType &of(TextRole role) const;
    /// The same for a run that is set off.
    const PageType &of(TextRole role, bool isBold, bool isItalic) const;

    double points; ///< size of the body

    PageType title;
    PageType headRight;
    PageType foot;
    PageType body;
    PageType strong;
    PageType heading;
    PageType small;
    PageType code;

private:
    PageType made(TextRole role, bool isBold, bool isItalic) const;

    PageFont m_font;
    mutable std::map<int, PageType> m_more; ///< what few pages have, made when it is asked for
};
