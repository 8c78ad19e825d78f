// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/calendarpages.h"
#include "shell/pages/pagepainter.h"
#include "tools/pictures/albums.h"
#include "tools/pictures/picturesession.h"

#include <QLabel>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double dotsPerInch = 80;
constexpr std::array layouts{"month", "photo", "quarter", "year", "columns", "pocket"};
constexpr std::array styles{"classic", "open", "bars"};

/// What a household has in its year.
WallCalendar familyYear()
{
    WallCalendar calendar;
    calendar.title = u"Family Calendar 2027"_s;
    calendar.from = QDate(2027, 1, 1);
    calendar.persons = {u"Anne"_s, u"Ben"_s, u"Clara"_s};
    calendar.look.hasWeekNumbers = true;
    calendar.look.hasSmallMonths = true;
    const auto add = [&calendar](LineSource source, int month, int day, const QString &text) {
        const QDate date(2027, month, day);
        calendar.days[date].append({source, source == LineSource::Typed ? QDate() : date, false, text, text});
    };
    add(LineSource::Holiday, 1, 1, u"New Year's Day"_s);
    add(LineSource::Holiday, 3, 26, u"Good Friday"_s);
    add(LineSource::Holiday, 3, 29, u"Easter Monday"_s);
    add(LineSource::Holiday, 5, 1, u"Labour Day"_s);
    add(LineSource::Holiday, 12, 25, u"Christmas Day"_s);
    add(LineSource::Typed, 3, 14, u"Anne's concert"_s);
    add(LineSource::Birthday, 3, 9, u"Clara Lind turns 12"_s);
    add(LineSource::Typed, 3, 9, u"Party in the garden, twelve children, cake from the baker's"_s);
    add(LineSource::Planner, 3, 22, u"8:15 Dentist"_s);
    add(LineSource::Planner, 3, 22, u"Ben: exam in mathematics"_s);
    add(LineSource::ToDo, 3, 22, u"Renew the library cards"_s);
    for (QDate date(2027, 1, 5); date <= calendar.lastDay(); date = date.addDays(14))
        add(LineSource::Rule, date.month(), date.day(), u"Paper bin"_s);
    calendar.spans = {{QDate(2027, 3, 22), QDate(2027, 4, 3), 1, u"School holidays"_s},
                      {QDate(2027, 3, 25), QDate(2027, 3, 27), 2, u"Grandma is here"_s},
                      {QDate(2027, 7, 25), QDate(2027, 9, 5), 1, u"Summer holidays"_s},
                      {QDate(2027, 8, 2), QDate(2027, 8, 13), 4, u"Italy"_s}};
    return calendar;
}

/// More than the sheets have room for.
WallCalendar crowdedYear()
{
    WallCalendar calendar = familyYear();
    const QStringList texts{u"8:00 Dentist, Anne"_s, u"Ben: football training, bring the blue shirt"_s,
                            u"19:30 Choir"_s, u"Car to the garage for the yearly inspection"_s};
    for (QDate date = calendar.from; date <= calendar.lastDay(); date = date.addDays(1)) {
        for (int i = 0; i < 6; ++i)
            calendar.days[date].append({.shown = texts[(i + date.day()) % texts.size()]});
    }
    return calendar;
}

void takeSheet(PictureSession &session, const QString &name, WallCalendar calendar, int month)
{
    const QString photo = session.program().programFolder.filePath(u"WP1.jpg"_s);
    calendar.photos[calendar.month(month)] = {photo, u"The hills behind the lake"_s};
    const CalendarPages::Source source{
        .context = {.setup = CalendarPages::setup(calendar.look), .today = QDate(2026, 11, 23)}};
    const Page page = CalendarPages::page(calendar, source, {CalendarPages::sheetOf(calendar, month)});
    PageFont font;
    font.font.setPointSizeF(PageMetrics::bodyPoints);
    const QImage image = PagePainter(page, source.context.setup, font).image(0, dotsPerInch);
    QLabel sheet;
    sheet.setPixmap(QPixmap::fromImage(image));
    sheet.resize(image.size());
    session.takeWidget(name.toLatin1().constData(), sheet);
}

} // namespace

/// March in every layout and style, on both papers, upright and landscape, as it is and crowded; a month of
/// four weeks and one of six.
void Albums::calendarPages(const Camera &camera)
{
    if (!camera.desk.takesPages)
        return;
    PictureSession session(camera);
    for (std::size_t layout = 0; layout < layouts.size(); ++layout) {
        for (std::size_t style = 0; style < styles.size(); ++style) {
            for (const bool isLandscape : {false, true}) {
                for (const bool isCrowded : {false, true}) {
                    WallCalendar calendar = isCrowded ? crowdedYear() : familyYear();
                    calendar.look.layout = CalendarLayout(layout);
                    calendar.look.style = CalendarStyle(style);
                    calendar.look.isLandscape = isLandscape;
                    calendar.look.paper = isCrowded ? u"Letter"_s : u"A4"_s;
                    const QString name = u"calendar-%1-%2%3%4"_s.arg(
                        QLatin1String(layouts[layout]), QLatin1String(styles[style]),
                        isLandscape ? u"-landscape"_s : QString(), isCrowded ? u"-crowded"_s : QString());
                    takeSheet(session, name, calendar, 2);
                }
            }
        }
    }
    takeSheet(session, u"calendar-four-weeks"_s, familyYear(), 1);
    takeSheet(session, u"calendar-six-weeks"_s, familyYear(), 7);
}
