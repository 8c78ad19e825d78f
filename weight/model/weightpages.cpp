// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/model/weightpages.h"

#include "shell/core/dates.h"
#include "weight/model/photodays.h"
#include "weight/model/weightcolumns.h"
#include "weight/model/weightdates.h"
#include "weight/model/weightfigures.h"
#include "weight/model/weightnumbers.h"
#include "weight/model/weightwords.h"

#include <array>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

using WeightPages::Options;
using WeightPages::Pictures;

/// In inches: "Average Number of Days Per Week:" in the widest of usual fonts.
constexpr double planCaptions = 3.2;
constexpr double photoTop = 1.75; ///< in inches: below the title and two lines about the photo
constexpr double photoFoot = 1.3; ///< for the closing lines
constexpr double photoGap = 0.3;
constexpr double lineHeight = 0.24;

QString joined(const QString &text, const QString &words)
{
    return text.isEmpty() || words.isEmpty() ? QString(text + words) : QString(text + u", "_s + words);
}

/// The parts of the printout.
class WeightPaper
{
public:
    WeightPaper(const WeightSheet &sheet, const Options &options, const PageContext &context)
        : m_sheet(sheet)
        , m_options(options)
        , m_context(context)
        , m_photoDays(PhotoDays::of(sheet))
        , m_figures(WeightFigures::of(sheet, context.today))
    {}

    void addSummary(Page &page) const
    {
        PageItem::Columns columns;
        columns.weights = {0.65, 1.54, 1.13, 1.6}; // for the longest date and the widest of usual fonts
        columns.lines = lines();
        page.table(columns);
        const QList<QStringList> figures = summary();
        const qsizetype half = (figures.size() + 1) / 2;
        for (qsizetype i = 0; i < half; ++i)
            page.row(figures[i] + figures.value(i + half, {QString(), QString()}));
        page.blankLine().line(WeightWords::goalSentence(m_figures.forecast, m_context.style));
    }

    void addData(Page &page) const
    {
        page.numberedSection(u"Weight Tracker Data - Page "_s);
        const WeightTable &weighIns = m_sheet.weighIns;
        if (weighIns.isEmpty()) {
            page.line(u"There are no weigh-ins."_s);
            return;
        }
        PageItem::Columns columns;
        columns.weights = {1.2, 1, 1.3, 1.5};
        columns.headings = WeightWords::headings();
        columns.alignments = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignRight, Qt::AlignRight};
        columns.lines = lines();
        if (m_context.setup.orientation == PageSetup::Landscape) {
            columns.across = 2;
            columns.endsEven = true;
        }
        page.table(columns);
        for (qsizetype row = 0; row < weighIns.rowCount(); ++row)
            page.row({weighIns.date(row), weighIns.weight(row), WeightColumns::change(weighIns, row),
                      WeightColumns::difference(weighIns, row, m_sheet.beginningWeight())});
    }

    void addPlan(Page &page) const
    {
        page.section(u"Exercise Plan and Information"_s);
        PageItem::Columns columns;
        columns.weights = {planCaptions,
                           m_context.setup.sheet().width() - 2 * PageMetrics::margin - planCaptions};
        columns.lines = lines();
        page.table(columns);
        using enum WeightSheet::Field;
        for (const WeightSheet::Field field :
             {BeginningDate, BeginningWeight, GoalWeight, DaysPerWeek, TimePerPeriod, ExerciseTypes})
            page.row({WeightWords::captions[field].toString(), m_sheet.field(field).trimmed()});
        const QString comments = m_sheet.shownComments();
        if (comments.trimmed().isEmpty())
            return;
        page.blankLine().line(WeightWords::comments.toString(), TextRole::Heading);
        for (const QString &line : comments.split(u'\n'))
            page.line(line);
    }

    /// Side by side where both are chosen.
    void addPhotos(Page &page, const Pictures &pictures) const
    {
        page.section(u"Beginning and Current Photos"_s);
        const QSizeF sheet = m_context.setup.sheet();
        const bool areBoth = m_options.beginningPicture && m_options.currentPicture;
        const double whole = sheet.width() - 2 * PageMetrics::margin;
        const double width = areBoth ? (whole - photoGap) / 2 : whole;
        QRectF place(PageMetrics::margin, photoTop, width, sheet.height() - photoTop - photoFoot);
        if (m_options.beginningPicture)
            addPhoto(page, place, u"Beginning"_s, WeightSheet::BeginningPhotoDate, pictures.beginning);
        if (areBoth)
            place.translate(width + photoGap, 0);
        if (areBoth && m_options.dividerLines)
            page.placeRule(
                {place.left() - photoGap / 2, photoTop - 2 * lineHeight, 0, place.height() + 2 * lineHeight});
        if (m_options.currentPicture)
            addPhoto(page, place, u"Current"_s, WeightSheet::CurrentPhotoDate, pictures.current);
    }

private:
    TableLines lines() const { return m_options.dividerLines ? TableLines::Rows : TableLines::None; }

    static QString difference(const std::optional<double> &change)
    {
        return change ? WeightNumbers::difference(*change) : u"-"_s;
    }
    static QString weight(const std::optional<double> &weight)
    {
        return weight ? WeightWords::weight(*weight) : u"-"_s;
    }
    static QString aWeek(const std::optional<double> &change)
    {
        return change ? WeightWords::aWeek(*change) : u"-"_s;
    }

    /// Captions with their figures; the second half stands at the right.
    QList<QStringList> summary() const
    {
        using enum WeightSheet::Field;
        const QString beginning =
            joined(m_sheet.field(BeginningWeight).trimmed(), m_sheet.field(BeginningDate).trimmed());
        const QString now = m_figures.now ? joined(WeightWords::weight(m_figures.now->weight),
                                                   WeightDates::longText(m_figures.now->date))
                                          : u"-"_s;
        QString week = weight(m_figures.weekAverage);
        if (m_figures.weekBefore)
            week += u" (7 days before: %1)"_s.arg(weight(m_figures.weekBefore));
        return {{u"Beginning:"_s, beginning},
                {u"Now:"_s, now},
                {u"Goal:"_s, m_sheet.field(GoalWeight).trimmed()},
                {u"To the goal:"_s, WeightWords::toGoal(m_figures)},
                {u"Total change:"_s, difference(m_figures.total)},
                {u"Average of 7 days:"_s, week},
                {u"Change on average:"_s, aWeek(m_figures.perWeek)},
                {u"Last four weeks:"_s, aWeek(m_figures.perWeekLately)}};
    }

    void addPhoto(Page &page, const QRectF &place, const QString &caption, WeightSheet::Field dateField,
                  const QString &path) const
    {
        const QRectF line(place.left(), photoTop - 2.4 * lineHeight, place.width(), lineHeight);
        page.placeText(line, caption, TextRole::Strong);
        page.placeText(line.translated(0, lineHeight), taken(dateField));
        if (!path.isEmpty()) {
            page.placePicture(place, path);
            return;
        }
        page.placeRule(place);
        page.placeText(place, u"No photo"_s, TextRole::Small, Qt::AlignCenter);
    }

    /// "January 05, 2026, 214.5": the weight of that day or, as on the screen, of the nearest within a week.
    QString taken(WeightSheet::Field dateField) const
    {
        const PhotoDays::Day &day =
            dateField == WeightSheet::BeginningPhotoDate ? m_photoDays.then : m_photoDays.now;
        const QString date = m_sheet.field(dateField).trimmed();
        return day.weight ? joined(date, WeightWords::weight(*day.weight)) : date;
    }

    const WeightSheet &m_sheet;
    const Options &m_options;
    const PageContext &m_context;
    PhotoDays m_photoDays;
    WeightFigures m_figures;
};

} // namespace

QSizeF WeightPages::graphSize(const PageSetup &setup)
{
    const double width = setup.sheet().width() - 2 * PageMetrics::margin;
    return {width, setup.orientation == PageSetup::Portrait ? 4.5 : 3.8};
}

Page WeightPages::printout(const WeightSheet &sheet, const Options &options, const Pictures &pictures,
                           const PageContext &context)
{
    const WeightPaper paper(sheet, options, context);
    Page page(u"Weight Tracker Printout"_s, sheet.field(WeightSheet::Name).trimmed());
    page.frameSheets(options.borderLines);
    paper.addSummary(page);
    if (options.graph && !pictures.graph.isEmpty())
        page.blankLine().picture(pictures.graph, graphSize(context.setup));
    if (options.data)
        paper.addData(page);
    if (options.plan)
        paper.addPlan(page);
    if (options.beginningPicture || options.currentPicture)
        paper.addPhotos(page, pictures);
    return page.close(context.today, context.style);
}
