// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pages/pagetype.h"

#include "shell/pages/fixedface.h"

#include <QFontInfo>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;
using PageMetrics::bodyPoints;
using PageMetrics::chapterPoints;
using PageMetrics::coverPoints;
using PageMetrics::headingPoints;
using PageMetrics::lineFactor;
using PageMetrics::smallPoints;

namespace {

constexpr double titlePoints = 16;
constexpr int longestWord = 1000;
constexpr QColor footColor(0x5A, 0x5A, 0x5A);

QFont prepared(QFont font, double points, double fine)
{
    // A size in pixels is the same on every device; one in points would follow its resolution.
    font.setPixelSize(std::max(1, int(std::lround(points * fine))));
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QFont semibold(QFont font)
{
    font.setWeight(std::max(QFont::DemiBold, QFont::Weight(font.weight())));
    return font;
}

/// The size chosen for the body; fonts set in pixels and nonsense become something readable.
double chosenPoints(const QFont &font)
{
    const double points = font.pointSizeF() > 0 ? font.pointSizeF() : QFontInfo(font).pointSizeF();
    return points > 0 ? std::clamp(points, 4.0, 96.0) : bodyPoints;
}

/// Line ends and tabs of every kind made plain; other control characters become blanks. A word without end is
/// cut up: for every line of it the wrapping would look at all of the rest.
QStringList paragraphs(QString text)
{
    text.replace("\r\n"_L1, "\n"_L1).replace(u'\r', u'\n').replace(QChar::LineSeparator, u'\n');
    text.replace(QChar::ParagraphSeparator, u'\n').replace(u'\t', "    "_L1);
    QString plain;
    plain.reserve(text.size());
    int wordLength = 0;
    for (const QChar character : text) {
        const bool isControl = character < u' ' && character != u'\n';
        plain += isControl ? u' ' : character;
        wordLength = character <= u' ' ? 0 : wordLength + 1;
        if (wordLength >= longestWord && !character.isHighSurrogate()) {
            plain += u'\n';
            wordLength = 0;
        }
    }
    return plain.split(u'\n');
}

/// The size of these letters beside the body's.
double scaleOf(TextRole role)
{
    switch (role) {
    case TextRole::Heading:
        return headingPoints / bodyPoints;
    case TextRole::Small:
        return smallPoints / bodyPoints;
    case TextRole::Chapter:
        return chapterPoints / bodyPoints;
    case TextRole::Cover:
        return coverPoints / bodyPoints;
    case TextRole::Body:
    case TextRole::Strong:
    case TextRole::Code:
        break;
    }
    return 1;
}

/// Whether the blank at `at` stands within a number.
bool isInsideNumber(const QString &text, qsizetype at)
{
    return at > 0 && at + 1 < text.size() && (text[at - 1].isDigit() || text[at - 1] == u')') &&
           text[at + 1].isDigit();
}

/// The same text with no-break spaces inside its numbers, "(440) 555-0100" and "221 00" say, as far as they
/// are not endless.
QString withUnbrokenNumbers(QString text)
{
    constexpr qsizetype longestNumber = 20;
    const auto isNumeral = [](QChar c) { return (c >= u'0' && c <= u'9') || u"()+-/."_s.contains(c); };
    qsizetype start = 0;
    for (qsizetype i = 1; i + 1 < text.size(); ++i) {
        if (text[i] != u' ')
            continue;
        const bool isInside = isInsideNumber(text, i);
        qsizetype end = i + 1;
        while (end < text.size() && isNumeral(text[end]))
            ++end;
        if (isInside && end - start <= longestNumber)
            text[i] = QChar::Nbsp;
        else
            start = i + 1;
    }
    return text;
}

QString withoutTrailingBlanks(QString line)
{
    while (line.endsWith(u' '))
        line.chop(1);
    return line;
}

} // namespace

PageType::PageType(const QFont &font, double points, QColor color)
    : m_font(prepared(font, points, fine))
    , m_metrics(m_font)
    , m_color(color.isValid() ? color : QColor(Qt::black))
{
    const double height = m_metrics.height() / fine;
    m_lineHeight = std::max(points * lineFactor, height);
    m_baseline = (m_lineHeight - height) / 2 + m_metrics.ascent() / fine;
    m_advances.fill(-1);
    for (std::size_t code = u' '; code < m_advances.size(); ++code) {
        if (code < 0x7F || code > 0xA0)
            m_advances[code] = float(m_metrics.horizontalAdvance(QChar(char16_t(code))) / fine);
    }
}

double PageType::width(const QString &text) const
{
    return m_metrics.horizontalAdvance(text) / fine;
}

bool PageType::surelyFits(const QString &text, double width) const
{
    double sum = 1; // for pairs that the font sets wider than their parts
    for (const QChar character : text) {
        const char16_t code = character.unicode();
        if (code >= m_advances.size() || m_advances[code] < 0)
            return false;
        sum += m_advances[code];
        if (sum > width)
            return false;
    }
    return true;
}

QStringList PageType::wrapped(const QString &text, double width) const
{
    if (text.isEmpty() || surelyFits(text, width))
        return {text};
    QStringList lines;
    for (const QString &paragraph : paragraphs(text)) {
        if (this->width(paragraph) <= width) {
            lines << paragraph;
            continue;
        }
        QTextLayout layout(withUnbrokenNumbers(paragraph), m_font);
        QTextOption option;
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        layout.setTextOption(option);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(std::max(1.0, width) * fine);
            lines << withoutTrailingBlanks(paragraph.mid(line.textStart(), line.textLength()));
        }
        layout.endLayout();
    }
    return lines;
}

/// Whether the widths of all of its characters are known.
bool PageType::isPlain(const QString &text) const
{
    return std::ranges::all_of(text, [this](QChar character) {
        return character.unicode() < m_advances.size() && m_advances[character.unicode()] >= 0;
    });
}

QStringList PageType::wrappedFast(const QString &text, double width) const
{
    if (text.isEmpty() || surelyFits(text, width))
        return {text};
    if (!isPlain(text))
        return wrapped(text, width);
    constexpr double hanging = 3; // a stop or comma may stand out a little rather than begin a line
    constexpr double spare = 1;   // for pairs that the font sets wider than their parts
    QStringList lines;
    qsizetype start = 0;
    qsizetype blank = 0; // behind the last one where a line can end
    double sum = spare;
    double behindBlank = spare;
    for (qsizetype i = 0; i < text.size(); ++i) {
        sum += advance(text[i]);
        behindBlank += advance(text[i]);
        const bool mayHang = u",.;:!?"_s.contains(text[i]);
        if (sum > width + (mayHang ? hanging : 0) && i > start && text[i] != u' ') {
            const qsizetype end = blank > start ? blank : i;
            lines << withoutTrailingBlanks(text.mid(start, end - start));
            sum = end == i ? spare + advance(text[i]) : behindBlank;
            start = end;
        }
        if (text[i] == u' ' && !isInsideNumber(text, i)) {
            blank = i + 1;
            behindBlank = spare;
        }
    }
    lines << withoutTrailingBlanks(text.mid(start));
    return lines;
}

QString PageType::onOneLine(QString text)
{
    text.replace(u'\t', "    "_L1);
    std::ranges::replace_if(
        text, [](QChar c) { return c < u' ' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator; },
        QChar(u' '));
    return text;
}

QString PageType::elided(const QString &line, double width) const
{
    return m_metrics.elidedText(line, Qt::ElideRight, width * fine);
}

QStringList PageType::shortened(QStringList lines, qsizetype most, double width) const
{
    if (lines.size() > most) {
        const QString rest = lines.mid(most - 1).join(u' ');
        lines = lines.mid(0, most - 1);
        lines << elided(rest, width);
    }
    return lines;
}

void PageType::draw(QPainter &painter, QPointF top, const QString &line) const
{
    if (line.isEmpty())
        return;
    painter.save();
    painter.translate(top.x(), top.y() + m_baseline);
    painter.scale(1 / fine, 1 / fine);
    painter.setFont(m_font);
    painter.setPen(m_color);
    painter.drawText(QPointF(), line);
    painter.restore();
}

void PageType::draw(QPainter &painter, QPointF top, double width, Qt::Alignment alignment,
                    const QString &line) const
{
    double shift = 0;
    if (alignment & (Qt::AlignRight | Qt::AlignHCenter))
        shift = (width - this->width(line)) * (alignment & Qt::AlignRight ? 1 : 0.5);
    draw(painter, top + QPointF(shift, 0), line);
}

PageTypes::PageTypes(const PageFont &font)
    : PageTypes(font, chosenPoints(font.font))
{}

PageTypes::PageTypes(const PageFont &font, double points)
    : points(points)
    , title(semibold(QFont()), titlePoints)
    , headRight(QFont(), bodyPoints)
    , foot(QFont(), smallPoints, footColor)
    , body(font.font, points, font.color)
    , strong(semibold(font.font), points, font.color)
    , heading(semibold(font.font), points * scaleOf(TextRole::Heading), font.color)
    , small(font.font, points * scaleOf(TextRole::Small), font.color)
    , code(FixedFace::font(), points, font.color)
    , m_font(font)
{}

const PageType &PageTypes::of(TextRole role) const
{
    switch (role) {
    case TextRole::Body:
        return body;
    case TextRole::Strong:
        return strong;
    case TextRole::Heading:
        return heading;
    case TextRole::Small:
        return small;
    case TextRole::Code:
        return code;
    case TextRole::Chapter:
    case TextRole::Cover:
        break;
    }
    return of(role, false, false);
}

const PageType &PageTypes::of(TextRole role, bool isBold, bool isItalic) const
{
    const bool isMade = role != TextRole::Chapter && role != TextRole::Cover;
    if (isMade && !isBold && !isItalic)
        return of(role);
    const int key = int(role) * 4 + (isBold ? 2 : 0) + (isItalic ? 1 : 0);
    auto found = m_more.find(key);
    if (found == m_more.end())
        found = m_more.emplace(key, made(role, isBold, isItalic)).first;
    return found->second;
}

PageType PageTypes::made(TextRole role, bool isBold, bool isItalic) const
{
    const bool isLight = role == TextRole::Body || role == TextRole::Small || role == TextRole::Code;
    QFont font = role == TextRole::Code ? FixedFace::font() : m_font.font;
    if (isBold || !isLight)
        font = semibold(font);
    font.setItalic(isItalic || font.italic());
    return {font, points * scaleOf(role), m_font.color};
}
