// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/programstate.h"

#include <QDate>
#include <QMarginsF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include <memory>
#include <variant>
#include <vector>

struct PageGrid;

/// How a line of a page is set.
enum class TextRole {
    Body,    ///< 11 pt in the page font
    Strong,  ///< body, semibold
    Heading, ///< 13 pt semibold
    Small,   ///< 10 pt
    Code,    ///< 11 pt in letters of one width, for what is copied sign by sign
    Chapter, ///< 22 pt semibold
    Cover    ///< 32 pt semibold, for a title sheet
};

/// Measures of paper and print that pages are built with, before any font is known.
namespace PageMetrics {

inline constexpr double pointsPerInch = 72;
inline constexpr double millimetersPerInch = 25.4;
/// Upright sheets, in inches.
inline constexpr QSizeF letter{8.5, 11.0};
inline constexpr QSizeF a4{210 / millimetersPerInch, 297 / millimetersPerInch};
inline constexpr QSizeF a5{148 / millimetersPerInch, 210 / millimetersPerInch};

/// Around what flows, in inches.
inline constexpr double margin = 0.5;

inline constexpr double bodyPoints = 11;
inline constexpr double headingPoints = 13;
inline constexpr double smallPoints = 10;
inline constexpr double chapterPoints = 22;
inline constexpr double coverPoints = 32;
inline constexpr double smallestPoints = 9; ///< of what is made smaller to fit
/// The distance of two lines, in sizes of their font.
inline constexpr double lineFactor = 1.35;

/// The distance of two lines in inches, where the page font has its usual size.
constexpr double lineHeight(TextRole role)
{
    const double points = role == TextRole::Heading   ? headingPoints
                          : role == TextRole::Small   ? smallPoints
                          : role == TextRole::Chapter ? chapterPoints
                          : role == TextRole::Cover   ? coverPoints
                                                      : bodyPoints;
    return points * lineFactor / pointsPerInch;
}

/// How many letters of a text fit on an inch, in the widest of the common fonts; `role` is Body or Small.
constexpr double charactersPerInch(TextRole role)
{
    return role == TextRole::Small ? 11.6 : 10.6;
}

} // namespace PageMetrics

/// The sheet that pages are built for, in inches, as it lies: landscape has the longer side across.
struct PageSetup {
    enum Orientation { Portrait, Landscape };

    QSizeF paper = PageMetrics::letter; ///< portrait size
    Orientation orientation = Portrait;

    /// Width and height of the sheet as it lies.
    QSizeF sheet() const { return orientation == Portrait ? paper : paper.transposed(); }

    bool operator==(const PageSetup &) const = default;
};

/// The lines that separate the cells of a table.
enum class TableLines {
    Rows, ///< hairlines between the rows
    None,
    Grid ///< around every cell
};

/// Where the columns of a table get their widths from.
enum class TableWidths {
    ByWeights,
    /// The first column has words, the others numbers, none of which is ever broken: the letters shrink to 9
    /// pt at most, and columns that find no room even so follow as a table of their own, behind the first
    /// column again. What is left over is shared out.
    ForNumbers
};

/// Where the number of a sheet stands, when there is more than one.
enum class SheetNumbers {
    Foot,  ///< "Page 2 of 5" at the foot
    Title, ///< behind the title, also of a single sheet
    Book,  ///< the number alone in the middle of the foot, on all sheets but the first
    None
};

/// How the title stands at the head of the sheets.
enum class SheetHeads {
    Title, ///< over a rule, on each of them
    /// As in a book: a section begins under its title in large letters, its other sheets have title and
    /// section small at the head, and those before the first section nothing.
    Running
};

namespace PageItem {

/// One paragraph, wrapped to the width of the page; an empty text is a blank line.
struct Line {
    QString text;
    TextRole role = TextRole::Body;
    bool operator==(const Line &) const = default;
};

/// A stretch of a paragraph in one style.
struct Run {
    QString text;
    bool isBold = false;
    bool isItalic = false;
    bool operator==(const Run &) const = default;
};

/// One paragraph of runs, wrapped to the width of the page. Where a sheet ends in it, at least two of its
/// lines stand on either side.
struct Paragraph {
    std::vector<Run> runs;
    TextRole role = TextRole::Body;
    int listLevel = 0;          ///< from 1 on: an item of a list, behind a dot, set in by so many steps
    bool staysWithNext = false; ///< no sheet ends behind it, as behind a heading
    int mark = 0;               ///< by which rows tell its sheet; 0: none
    bool operator==(const Paragraph &) const = default;
};

/// Starts a table: column widths as weights of the page width, headings (may be empty), numbers right.
struct Columns {
    std::vector<double> weights;
    QStringList headings;
    std::vector<Qt::AlignmentFlag> alignments; ///< one a column; left when there are fewer
    TableLines lines = TableLines::Rows;
    /// How many times the table stands side by side: its rows run down one after the other, each as wide as
    /// its share of the page.
    int across = 1;
    static constexpr int mostAcross = 4;
    bool endsEven = false; ///< side by side, the last rows are as many in each; else they fill one first
    TableWidths widths = TableWidths::ByWeights;
    double points = 0;        ///< size of the letters; 0: as the page font has them
    bool isToWriteIn = false; ///< rows high enough for handwriting

    bool operator==(const Columns &) const = default;
};

/// One row of the table; never split over pages. A continued page repeats title and headings.
struct Row {
    QStringList cells;
    TextRole role = TextRole::Body;
    bool staysWithNext = false;   ///< no sheet ends between it and the row that follows
    std::vector<int> codeCells{}; ///< those of its cells that are set as code
    /// The layout puts the numbers of the sheets with these marks behind the last cell: "garden  3, 17" in an
    /// index. A row that stands before its marks, as in a table of contents, leaves that cell empty, and wide
    /// enough for a number: sheets are cut before it is known.
    std::vector<int> marks{};
    bool operator==(const Row &) const = default;
};

/// A label with a line to be filled in by hand behind it; without a label the line takes the whole width.
struct Blank {
    QString label;
    bool operator==(const Blank &) const = default;
};

/// A picture from a file in the flow of the page, scaled to fit `size` (inches), aspect kept. A file that
/// cannot be read leaves the place empty.
struct Picture {
    QString path;
    QSizeF size;
    bool operator==(const Picture &) const = default;
};

/// A picture in the flow of the page, centred, as large as fits `within` (inches) and is good for its dots;
/// its caption stands below it, on the same sheet. Where the file cannot be read there is a frame with its
/// name.
struct Figure {
    QString path;
    QSizeF within;
    QString caption{};
    bool operator==(const Figure &) const = default;
};

/// A picture made of black squares in the flow of the page, a code for cameras say: so drawn that it is sharp
/// on any paper. `rows` has a letter for each square, '#' for a black one.
struct Squares {
    QStringList rows;
    double size = 0; ///< width and height in inches
    bool operator==(const Squares &) const = default;
};

/// A text at a fixed place: inches from the sheet's top left corner, wrapped to the rectangle's width and cut
/// (elided) at its last whole line.
struct PlacedText {
    QRectF place;
    QString text;
    TextRole role = TextRole::Body;
    Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignTop;
    bool operator==(const PlacedText &) const = default;
};

/// A picture at a fixed place: inches from the sheet's top left corner, scaled to fit, aspect kept, top left
/// aligned.
struct PlacedPicture {
    QRectF place;
    QString path;
    bool operator==(const PlacedPicture &) const = default;
};

/// A hairline around a rectangle at a fixed place, in inches from the sheet's top left corner; a rectangle
/// without height or width is one line.
struct PlacedRule {
    QRectF place;
    bool operator==(const PlacedRule &) const = default;
};

/// A sheet of days at its place, which begins a new sheet. Where its lines do not all find room, a list of
/// the others follows on the next.
struct Grid {
    std::shared_ptr<const PageGrid> grid;
    bool operator==(const Grid &other) const;
};

/// What follows stands below everything that is placed on its sheet.
struct BelowPlaced {
    bool operator==(const BelowPlaced &) const = default;
};

/// A thin rule across the page.
struct Rule {
    bool operator==(const Rule &) const = default;
};

/// Starts the next page, which repeats the title. Does nothing on a sheet that is still empty or behind the
/// last item.
struct Break {
    bool operator==(const Break &) const = default;
};

/// Starts the next sheet, unless this is the first item of one: it and those behind it bear another title.
struct Section {
    QString title;
    bool isNumbered = false; ///< each has its number behind the title, from 1 on
    int mark = 0;            ///< by which rows tell its first sheet; 0: none
    bool operator==(const Section &) const = default;
};

} // namespace PageItem

/// A printable page, or as many as its content needs, described before anything is drawn. It belongs to no
/// window and no paper: preview, clipboard picture, PDF and printer lay it out alike.
class Page
{
public:
    using Item =
        std::variant<PageItem::Line, PageItem::Paragraph, PageItem::Columns, PageItem::Row, PageItem::Blank,
                     PageItem::Picture, PageItem::Figure, PageItem::Squares, PageItem::PlacedText,
                     PageItem::PlacedPicture, PageItem::PlacedRule, PageItem::Grid, PageItem::BelowPlaced,
                     PageItem::Rule, PageItem::Break, PageItem::Section>;

    /// A page headed by `title`; `headRight` (usually a date) stands at the right of the title line.
    explicit Page(QString title = {}, QString headRight = {});

    Page &line(const QString &text, TextRole role = TextRole::Body);
    Page &blankLine() { return line({}); }
    Page &paragraph(PageItem::Paragraph paragraph);
    Page &columns(std::vector<double> weights, QStringList headings = {},
                  std::vector<Qt::AlignmentFlag> alignments = {});
    Page &table(PageItem::Columns columns);
    Page &row(QStringList cells, TextRole role = TextRole::Body);
    /// A row of which some cells, counted from 0, are set as code.
    Page &codeRow(QStringList cells, std::vector<int> codeCells);
    /// A row that no sheet separates from the next one.
    Page &rowWithNext(QStringList cells, TextRole role = TextRole::Body);
    /// A row with the numbers of the sheets that bear these marks.
    Page &rowWithSheets(QStringList cells, std::vector<int> marks, TextRole role = TextRole::Body);
    Page &blank(const QString &label);
    Page &picture(const QString &path, QSizeF inches);
    Page &figure(const QString &path, QSizeF within, const QString &caption = {});
    Page &squares(QStringList rows, double inches);
    Page &placeText(const QRectF &inches, const QString &text, TextRole role = TextRole::Body,
                    Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignTop);
    Page &placePicture(const QRectF &inches, const QString &path);
    Page &placeRule(const QRectF &inches);
    Page &placeGrid(std::shared_ptr<const PageGrid> grid);
    Page &belowPlaced();
    Page &rule();
    Page &breakPage();
    Page &section(const QString &title, int mark = 0);
    /// The same; its sheets have their numbers behind the title.
    Page &numberedSection(const QString &title);

    /// `Foot` unless told otherwise.
    Page &numberSheets(SheetNumbers numbers);
    SheetNumbers sheetNumbers() const { return m_numbers; }

    /// `Title` unless told otherwise.
    Page &setHeads(SheetHeads heads);
    SheetHeads heads() const { return m_heads; }

    /// What stands behind the title of every sheet but the first, " (Continued)" say.
    Page &continueTitle(const QString &words);

    /// A thin frame around every sheet, inside its edges.
    Page &frameSheets(bool isFramed);
    bool hasFrames() const { return m_hasFrames; }

    /// Where the title begins, in inches from the sheet's upper edge, for pages that have something placed
    /// near it; half an inch unless told otherwise.
    Page &startAt(double inches);
    double start() const { return m_start; }

    /// What is left free at all edges, in inches; half an inch unless told otherwise. Call it before
    /// `startAt`.
    Page &setMargin(double inches);
    double margin() const { return m_margin; }

    /// Ends the page: a blank line, "Quillery" and "Printed on " with the short date of the day of building.
    /// The lines stand below everything else; a page of placed items leaves the half inch above the bottom
    /// margin free for them.
    Page &close(QDate printedOn, DateStyle style);

    const QString &title() const { return m_title; }
    /// The title as sheet `number` (from 1) shows it outside of sections.
    QString titleOf(int number) const;
    const QString &headRight() const { return m_headRight; }
    Page &setHeadRight(const QString &text);
    const std::vector<Item> &items() const { return m_items; }
    /// Puts other cells into the row that is item `item`, which has no marks then.
    void fillRow(std::size_t item, QStringList cells);
    /// The same page with other items.
    Page withItems(std::vector<Item> items) const;
    bool isClosed() const { return m_closed; }
    /// The last line but one of a closed page.
    static QString productLine() { return QStringLiteral("Quillery"); }
    /// The line with the printing date; empty until the page is closed.
    const QString &printedLine() const { return m_printedLine; }
    bool isEmpty() const { return m_items.empty(); }

    /// The page as plain text, a line an item, cells separated by tabs; serves the clipboard and tests.
    QString toText() const;
    /// The same of the items from `first` up to `end`, as a sheet holds them: under the title and, inside a
    /// table, its headings. The closing lines count as one item behind the last.
    QString toText(std::size_t first, std::size_t end) const { return toText(first, end, titleOf(1)); }
    QString toText(std::size_t first, std::size_t end, const QString &title) const;

    bool operator==(const Page &) const = default;

private:
    QString m_title;
    QString m_continued;
    double m_margin = PageMetrics::margin;
    double m_start = PageMetrics::margin;
    QString m_headRight;
    std::vector<Item> m_items;
    SheetNumbers m_numbers = SheetNumbers::Foot;
    SheetHeads m_heads = SheetHeads::Title;
    bool m_hasFrames = false;
    bool m_closed = false;
    QString m_printedLine;
};
