// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/datebox.h"

#include "shell/controls/datepicker.h"
#include "shell/core/clock.h"
#include "shell/core/dates.h"
#include "shell/core/framelines.h"

#include <QRegularExpression>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int longestDate = 20;
constexpr int thisCentury = 2000;

/// "12/2026" and "12/26"; a year of two digits lies in this century.
QDate firstOfMonth(const QString &text)
{
    static const QRegularExpression month(uR"(^\s*(\d{1,2})\s*[/.-]\s*(\d{2}|\d{4})\s*$)"_s);
    const QRegularExpressionMatch found = month.match(text);
    const int year = found.captured(2).toInt();
    return found.hasMatch() ? QDate(year < 100 ? thisCentury + year : year, found.captured(1).toInt(), 1)
                            : QDate();
}
} // namespace

DateBox::DateBox(const DateReading &reading, DatePicker *picker, QWidget *parent)
    : FieldBox(parent)
    , m_reading(reading)
{
    setByteLimit(longestDate);
    if (picker)
        picker->addBox(this);
    connect(this, &QLineEdit::editingFinished, this, &DateBox::tidy);
    connect(this, &QLineEdit::textChanged, this, [this] {
        const auto now = date();
        if (std::exchange(m_date, now) != now)
            emit dateChanged();
    });
}

std::optional<QDate> DateBox::date() const
{
    const QDate month = m_monthAlone == MonthAlone::Refused ? QDate() : firstOfMonth(text());
    if (month.isValid())
        return m_monthAlone == MonthAlone::FirstDay ? month : month.addMonths(1).addDays(-1);
    if (m_takesFuture)
        return Dates::parse(text(), m_reading.style);
    const QDate today = m_reading.clock.today();
    const auto past = Dates::parse(text(), m_reading.style, today);
    return past && *past <= today ? past : std::nullopt;
}

void DateBox::setDate(QDate date)
{
    if (date.isValid())
        setText(m_form ? m_form(date) : Dates::boxText(date, m_reading.style));
    else
        setText({});
}

void DateBox::tidy()
{
    if (isLocked() || !isModified())
        return;
    setModified(false);
    const auto typed = date();
    if (typed)
        setDate(*typed);
    const bool wasRefused = std::exchange(m_isRefused, !typed && !text().trimmed().isEmpty());
    // What was said of the text before does not outlast it, but it may hold for another box.
    if (m_isRefused)
        emit refused(FrameLines::notADate());
    else if (wasRefused && std::ranges::none_of(window()->findChildren<DateBox *>(), &DateBox::holdsNoDate))
        emit refused({});
}

/// Whether the text that was refused still stands.
bool DateBox::holdsNoDate() const
{
    return m_isRefused && isVisible() && !isLocked() && !text().trimmed().isEmpty() && !date();
}
