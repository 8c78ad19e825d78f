// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/photodatewords.h"
#include "album/model/photopeople.h"
#include "fuzztarget.h"

namespace {

const QDate today(2026, 11, 21);
constexpr int firstPhotograph = 1826;

void tryDate(const PhotoDate &date)
{
    require(PhotoDate::fromEdtf(date.edtf()) == date, "a date is its text");
    const QDate first = date.first();
    const QDate last = date.last();
    require(!first.isValid() || !last.isValid() || first <= last, "a date does not end before it begins");
    require(date.isUnderstood() || (!first.isValid() && !last.isValid()), "what means nothing has no days");
    require(!date.day().isValid() || date.year() == date.day().year(), "a day is of its year");
    require(!date.isUnderstood() || PhotoDateWords::mayBe(date, date), "a date is found by itself");
    require(date.isNone() == PhotoDateWords::words(date, DateStyle::Usa).isEmpty(), "a date has words");
    require(date.shifted(3600).isUnderstood() == date.isUnderstood(), "a date that is moved is one");
    PhotoPeople::age(QDate(1978, 11, 24), date);
    for (const DateStyle style : {DateStyle::Usa, DateStyle::Other}) {
        if (!date.isUnderstood())
            continue;
        const auto again = PhotoDateWords::read(PhotoDateWords::words(date, style), style, today);
        const bool isRefused = (date.first().isValid() && date.first() > today) ||
                               (date.last().isValid() && date.last().year() < firstPhotograph);
        require(again ? again->first() == date.first() && again->last() == date.last() : isRefused,
                "what is shown can be typed");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArrayView bytes = asBytes(data, size);
    tryDate(PhotoDate::fromEdtf(bytes));
    const QString typed = QString::fromUtf8(bytes);
    for (const DateStyle style : {DateStyle::Usa, DateStyle::Other}) {
        if (const auto date = PhotoDateWords::read(typed, style, today)) {
            require(date->isNone() || date->isUnderstood(), "what is read means something");
            tryDate(*date);
        }
        PhotoDateWords::readSought(typed, style, today);
    }
    return 0;
}
