// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/pictures/albums.h"
#include "tools/pictures/picturesession.h"

#include "planner/model/plannerfiles.h"

#include <QFile>
#include <QProgressBar>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Appointment {
    QLatin1StringView time;
    QLatin1StringView text;
};

void write(PictureSession &session, int dayOfNovember, const std::vector<Appointment> &appointments)
{
    PlannerDay day;
    for (std::size_t row = 0; row < appointments.size(); ++row) {
        day.times[row] = appointments[row].time;
        day.texts[row] = appointments[row].text;
    }
    if (!PlannerFiles(session.program().folder).write(QDate(2026, 11, dayOfNovember), day))
        qFatal("the planner's file cannot be written");
}

void plan(PictureSession &session)
{
    write(session, 13, {{"5:30 PM"_L1, "Gardening group"_L1}});
    write(session, 16, {{"9:00 AM"_L1, "Window cleaner"_L1}, {"4:30 PM"_L1, "Parents' evening, room 12"_L1}});
    write(session, 17, {{"7:30 PM"_L1, "Book club at Karin's"_L1}});
    write(session, 18, {{""_L1, "Return library books"_L1}, {"12:00 PM"_L1, "Lunch with Tessa"_L1}});
    write(session, 20,
          {{"10:15 AM"_L1, "Bicycle to the repair shop"_L1}, {"6:00 PM"_L1, "Dinner with the Linds"_L1}});
    write(session, 21,
          {{""_L1, "Water the ferns"_L1},
           {"8:30 AM"_L1, "Farmers' market with Oskar"_L1},
           {"11:30 AM"_L1, "Dentist, Dr. Moreau (bring the X-ray)"_L1},
           {"2:00 PM"_L1, "Choir rehearsal, St. Olaf hall"_L1}});
    write(session, 22, {{"11:00 AM"_L1, "Walk around the lake with Anne and the dogs"_L1}});
    write(session, 25,
          {{"7:45 AM"_L1, "School bus, with gym bags"_L1},
           {"9:00 AM"_L1, "Chimney sweep"_L1},
           {"10:30 AM"_L1, "Flu shots for everybody at Dr. Bergman's"_L1},
           {"12:15 PM"_L1, "Soup kitchen"_L1},
           {"3:00 PM"_L1, "Violin lesson"_L1},
           {"4:30 PM"_L1, "Collect the parcel from the post office"_L1},
           {"7:00 PM"_L1, "House meeting"_L1}});
    write(session, 27, {{"9:00 AM"_L1, "Board meeting"_L1}, {"1:30 PM"_L1, "Collect dry cleaning"_L1}});
}

/// The planner as it comes: one month, no options chosen yet.
void openWithoutOptions(PictureSession &session)
{
    plan(session);
    QFile::remove(session.program().folder.existingFile({}, u"SWR2.fil"_s));
    session.open(Function::Planner);
}

void takeViews(PictureSession &session)
{
    session.type(u"630p"_s);
    session.take("planner-time");
    session.key(Qt::Key_Tab);
    session.take("planner-day");
    session.box([&] { session.trigger("mVMonth"); },
                [&] {
                    session.take("message-save-day");
                    session.click("answerNo");
                });
    session.take("planner-month");
    session.trigger("mVWeek");
    session.take("planner-week");
    session.trigger("mVDay");
    session.fill("plannerSearch", u"lunch"_s);
    session.key(Qt::Key_Return);
    session.take("planner-search");
    session.trigger("searchEverything");
    session.type(u"an"_s);
    session.take("planner-search-everything");
    session.key(Qt::Key_Escape);
    session.trigger("mOCal");
    session.take("planner-options");
    session.click("calendarOptionsCancel");
    session.box([&] { session.trigger("mVGo"); }, [&] { session.take("planner-go-to-date"); });
}

void takePages(PictureSession &session)
{
    session.box([&] { session.trigger("mOPRange"); },
                [&] {
                    session.take("planner-print-dates");
                    session.click("rangeOk");
                });
    session.takePage("planner-page-dates");
    session.trigger("mOPDay");
    session.takePage("planner-page-day");
    session.trigger("mOPWeek");
    session.takePage("planner-page-week");
    session.click("SSCommand80_1");
    session.takePage("planner-page-week-landscape");
    session.trigger("mOPMonth");
    session.takePage("planner-page-month");
    session.click("nextPage");
    session.takePage("planner-page-month-list");
    session.key(Qt::Key_Escape);
}

void takeRecurrence(PictureSession &session)
{
    session.trigger("mVDay");
    session.focus("Text2_2");
    session.trigger("mERec");
    session.click("kind_2");
    session.take("planner-recurrence");
    session.click("kind_0");
    session.fill("endDate", u"Nov-20-2036"_s);
    session.click("recurrenceOk");
    // A walk over ten years is a matter of moments.
    const auto &progress = session.find<QProgressBar>("updateProgress");
    while (progress.value() < progress.maximum() / 5)
        QCoreApplication::processEvents();
    session.takeAtOnce("planner-recurrence-walk");
}

} // namespace

void Albums::planner(const Camera &camera)
{
    {
        PictureSession session(camera);
        openWithoutOptions(session);
        takeViews(session);
        takePages(session);
        takeRecurrence(session);
    }
    // The household's own options: two months, weeks from Monday without numbers.
    PictureSession session(camera);
    plan(session);
    session.open(Function::Planner);
    session.take("planner-two-months");
}
