// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/datebox.h"

#include "shell/controls/datepicker.h"
#include "shell/core/clock.h"
#include "shell/core/dates.h"
#include "shell/core/framelines.h"

#include <algorithm>
#include <utility>

namespace {
constexpr int longestDate = 20;
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
