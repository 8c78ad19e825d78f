// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/calendarprintpanel.h"

#include "calendar/model/calendarpages.h"
#include "shell/controls/choicegrid.h"

#include <QComboBox>
#include <QLocale>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int monthWidth = 112;
} // namespace

CalendarPrintPanel::CalendarPrintPanel(QWidget *parent)
    : PrintPanel(u"calendarPrint"_s, parent)
{
    what().add(u"All &months"_s);
    what().add(u"The month sho&wn"_s);
    what().add(u"&From"_s, makeRange());
    m_pages = compose();
    m_pdf = addButton(u"calendarPrintPdf"_s, u"Save &as PDF..."_s);
    addClose();
    connect(m_pdf, &QPushButton::clicked, this, &CalendarPrintPanel::pdfWanted);
}

QWidget *CalendarPrintPanel::makeRange()
{
    auto *range = new QWidget(this);
    m_from = named(new QComboBox(range), u"printFromMonth"_s);
    m_to = named(new QComboBox(range), u"printToMonth"_s);
    m_from->setAccessibleName(u"From the month"_s);
    m_to->setAccessibleName(u"To the month"_s);
    auto *row = new QHBoxLayout(range);
    row->setContentsMargins({});
    row->setSpacing(8);
    for (QComboBox *box : {m_from, m_to}) {
        box->setFixedWidth(boxWidth(u"Sep 2027"_s, monthWidth));
        row->addWidget(box);
        if (box == m_from)
            row->addWidget(makeQuietLabel(u"to"_s, range));
    }
    row->addStretch(1);
    return range;
}

void CalendarPrintPanel::start(const WallCalendar &calendar, QDate month, bool isForPdf)
{
    m_calendar = calendar;
    m_from->clear();
    m_to->clear();
    for (int index = 0; index < calendar.months; ++index) {
        const QString name = QLocale::c().toString(calendar.month(index), u"MMM yyyy"_s);
        m_from->addItem(name);
        m_to->addItem(name);
        m_shown = calendar.month(index) == month ? index : m_shown;
    }
    m_from->setCurrentIndex(m_shown);
    m_to->setCurrentIndex(calendar.months - 1);
    what().choose(isForPdf ? All : ThisMonth);
    m_isForPdf = isForPdf;
    setButtonKind(m_pages, isForPdf ? ButtonKind::Plain : ButtonKind::Main);
    setButtonKind(m_pdf, isForPdf ? ButtonKind::Main : ButtonKind::Plain);
}

void CalendarPrintPanel::accept()
{
    if (m_isForPdf)
        emit pdfWanted();
    else
        PrintPanel::accept();
}

QList<int> CalendarPrintPanel::sheets() const
{
    int from = 0;
    int to = m_calendar.months - 1;
    if (what().chosen() == ThisMonth) {
        from = to = m_shown;
    } else if (what().chosen() == Range) {
        from = std::clamp(m_from->currentIndex(), 0, to);
        to = std::clamp(m_to->currentIndex(), from, to);
    }
    QList<int> sheets;
    for (int month = from; month <= to; ++month) {
        const int sheet = CalendarPages::sheetOf(m_calendar, month);
        if (!sheets.contains(sheet))
            sheets.append(sheet);
    }
    return sheets;
}
