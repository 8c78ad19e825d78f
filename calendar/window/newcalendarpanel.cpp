// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/newcalendarpanel.h"

#include "calendar/model/calendarfill.h"
#include "calendar/model/calendarpages.h"
#include "calendar/model/newcalendar.h"
#include "calendar/window/calendarform.h"
#include "shell/controls/buttonrow.h"
#include "shell/look/theme.h"
#include "shell/pages/pagepainter.h"
#include "shell/pictures/keptpictures.h"
#include "shell/preview/previewpane.h"
#include "shell/preview/sheetpane.h"
#include "shell/program/program.h"

#include <QHBoxLayout>
#include <QScrollArea>
#include <QStyle>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int mostFormWidth = 380;
constexpr int typingPause = 80; ///< in milliseconds

} // namespace

NewCalendarPanel::NewCalendarPanel(const Program &program, QWidget *parent)
    : TaskPanel(u"newCalendarPanel"_s, u"New Calendar"_s, parent)
    , m_program(program)
    , m_form(new CalendarForm)
    , m_pane(nullptr)
    , m_make(nullptr)
{
    auto *work = new QWidget;
    auto *row = new QHBoxLayout(work);
    row->setContentsMargins({});
    row->setSpacing(16);
    QScrollArea *scroll = makeScrolling(m_form, u"newCalendarChoices"_s, this);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, scroll);
    scroll->setMinimumWidth(m_form->minimumSizeHint().width() + 2 * bar);
    scroll->setMaximumWidth(TypeScale::wide(mostFormWidth));
    row->addWidget(scroll, 3);
    m_pane = new SheetPane(u"newCalendarPreview"_s,
                           {u"newCalendarPrevious"_s, u"newCalendarSheet"_s, u"newCalendarNext"_s}, work);
    m_pane->view()->setAccessibleName(u"The calendar as it will be printed"_s);
    row->addWidget(m_pane, 4);
    setWork(work);
    m_make = addButton(u"newCalendarMake"_s, u"&Make Calendar"_s, ButtonKind::Main);
    setLeaveButton(u"newCalendarCancel"_s, u"C&ancel"_s);
    setFocusProxy(m_form->title());
    connect(m_make, &QPushButton::clicked, this, &NewCalendarPanel::accept);
    connect(m_form->title(), &QLineEdit::returnPressed, this, &NewCalendarPanel::accept);
    m_soon.setSingleShot(true);
    m_soon.setInterval(typingPause);
    connect(&m_soon, &QTimer::timeout, this, &NewCalendarPanel::refresh);
    connect(m_form, &CalendarForm::changed, &m_soon, qOverload<>(&QTimer::start));
}

void NewCalendarPanel::start()
{
    start(NewCalendar::proposed(m_program.clock.today(), m_program.state.dateStyle, m_program.settings));
}

void NewCalendarPanel::start(const WallCalendar &proposed)
{
    setTitle(u"New Calendar"_s);
    m_make->setText(u"&Make Calendar"_s);
    begin(proposed, true);
}

void NewCalendarPanel::startLook(const WallCalendar &calendar, QDate shown)
{
    setTitle(u"Change Look"_s);
    m_make->setText(u"&Change"_s);
    begin(calendar, false);
    const int month = (shown.year() - calendar.from.year()) * 12 + shown.month() - calendar.from.month();
    if (shown.isValid() && calendar.has(shown))
        m_pane->showSheet(CalendarPages::sheetOf(calendar, month));
}

void NewCalendarPanel::begin(const WallCalendar &calendar, bool isNew)
{
    m_isNew = isNew;
    m_before = calendar;
    m_sets = HolidaySets::of(m_program.folder);
    m_form->setCalendar(calendar, m_sets, isNew);
    m_pane->startOver();
    refresh();
    setWords({});
    buttonRow().rearrange();
    m_form->title()->selectAll();
}

WallCalendar NewCalendarPanel::calendar() const
{
    WallCalendar calendar = m_form->calendar();
    const bool hasOthers = m_isNew || calendar.holidaySets != m_before.holidaySets ||
                           calendar.from != m_before.from || calendar.months != m_before.months;
    if (!hasOthers)
        return calendar;
    return CalendarFill::plan(calendar, {CalendarFill::holidaysOf(calendar, m_sets)}, m_program.clock.today())
        .calendar;
}

void NewCalendarPanel::accept()
{
    if (m_form->calendar().title.isEmpty())
        refuse(u"Give the calendar a title."_s);
    else
        emit accepted();
}

void NewCalendarPanel::refuse(const QString &why)
{
    setWords(why);
    m_form->title()->setFocus();
}

void NewCalendarPanel::refresh()
{
    const WallCalendar calendar = this->calendar();
    CalendarPages::Source source{
        {CalendarPages::setup(calendar.look), m_program.state.dateStyle, m_program.clock.today(),
         m_program.state.familyName.text()},
        [this](const QString &path) { return KeptPictures::locate(m_program.folder, path); }};
    m_pane->setSheets(CalendarPages::sheetCount(calendar), [calendar, source](int sheet) {
        // The last one stands behind it, since the closing lines are on the last that is printed.
        const int last = CalendarPages::sheetCount(calendar) - 1;
        const QList<int> chosen = sheet < last ? QList{sheet, last} : QList{last};
        return PagePainter(CalendarPages::page(calendar, source, chosen), source.context.setup,
                           PreviewPane::usualFont());
    });
    setWords({});
}
