// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/pictures/albums.h"
#include "tools/pictures/picturesession.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// The year that a person has begun: holidays, bars, a photo, a few lines of her own, two rules.
constexpr auto begun = "Quillery calendar 1\r\n"
                       "title\tFamily Calendar 2027\r\n"
                       "from\t2027-01\r\n"
                       "months\t12\r\n"
                       "layout\tmonth\r\n"
                       "style\tclassic\r\n"
                       "paper\tA4\tlandscape\r\n"
                       "week\tmonday\tnumbers\r\n"
                       "holidays\tSweden\r\n"
                       "persons\tAnne\tKarin\tNils\r\n"
                       "photo\t2027-03\tPictures/photo01.jpg\tAt the lake\r\n"
                       "span\t2027-03-29\t2027-04-02\t2\tSpring holidays\r\n"
                       "rule\tevery 2 weeks 2027-01-05\t\tPaper bin\r\n"
                       "rule\tlast sat 05\t\tGarden day\r\n"
                       "day\t2027-03-14\ttyped\t\t\tAnne's concert\r\n"
                       "day\t2027-03-20\ttyped\tyearly\t\tPlant the beans\r\n";

void furnish(const DataFolder &folder)
{
    QFile file(folder.filePath(u"CalMk1.Fil"_s));
    if (!file.open(QIODevice::WriteOnly) || file.write(begun) < 0)
        qFatal("the calendar cannot be written");
}

/// Down to the second week, and into a day.
void takeTyping(PictureSession &session)
{
    session.focus("monthCells");
    session.key(Qt::Key_Down);
    session.key(Qt::Key_Return);
    session.type(u"Bake a caek for Sunday "_s);
    session.take("calendar-typing");
    session.key(Qt::Key_Escape);
    session.key(Qt::Key_Down, Qt::ControlModifier);
    session.take("calendar-line");
    session.trigger("mEDate");
    session.take("calendar-move");
    session.key(Qt::Key_Escape);
    session.focus("monthCells");
    session.key(Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
    session.take("calendar-days-chosen");
    session.key(Qt::Key_Return);
    session.take("calendar-bar");
    session.key(Qt::Key_Escape);
}

void takePanels(PictureSession &session)
{
    for (const auto &[command, name] : {std::pair("mCNew", "calendar-new"),
                                        {"mCLook", "calendar-look"},
                                        {"mCRules", "calendar-rules"},
                                        {"mCHol", "calendar-holidays"},
                                        {"mOPrt", "calendar-print"}}) {
        session.trigger(command);
        session.take(name);
        session.key(Qt::Key_Escape);
    }
    session.trigger("mOPrt");
    session.click("calendarPrintShow");
    session.take("calendar-preview");
    session.key(Qt::Key_Escape);
    session.key(Qt::Key_Escape);
}

} // namespace

void Albums::calendar(const Camera &camera)
{
    {
        PictureSession session(camera);
        session.open(Function::CalendarMaker);
        session.take("calendar-empty");
        session.click("firstCalendarButton");
        session.take("calendar-first");
    }
    PictureSession session(camera);
    furnish(session.program().folder);
    session.open(Function::CalendarMaker);
    session.trigger("mCFill");
    session.take("calendar-fill");
    session.click("fillNow");
    session.clickRow("calendarMonths", 2);
    session.take("calendar-month");
    session.trigger("mCFill");
    session.take("calendar-fill-again");
    session.key(Qt::Key_Escape);
    takeTyping(session);
    takePanels(session);
    session.fill("calendarSearch", u"choir"_s);
    session.take("calendar-search");
}
