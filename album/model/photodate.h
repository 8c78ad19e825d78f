// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDate>
#include <QTime>

#include <array>

/// When a picture was taken, as far as anybody knows: a moment, a day, "about 1974", "the 1980s". It is the
/// text of the record (EDTF of ISO 8601-2), which stays as it is, understood or not. `photodatewords.h` has
/// it as people type and read it.
class PhotoDate
{
public:
    static constexpr qsizetype width = 32;

    enum class Form {
        None,    ///< nothing is known
        Unknown, ///< there is a text, of another program, that means nothing here
        One,
        Before, ///< "../1950": before that year or day
        After,  ///< "1950/..": then or later
        Span    ///< "1970/1975"
    };
    enum class Precision { Century, Decade, Year, Season, Month, Day, Moment };

    /// One of the times that a date is made of.
    struct Part {
        Precision precision = Precision::Year;
        int year = 0;   ///< of a decade or a century its first
        int month = 0;  ///< 1 to 12, of a season 21 (spring) to 24 (winter)
        int day = 0;    ///< of the month
        int second = 0; ///< of the day
        bool isAbout = false;

        QDate first() const;
        QDate last() const;
        bool operator==(const Part &) const = default;
    };
    struct Parts {
        Form form = Form::None;
        Part from{}; ///< what it is, of `One`; what it is after or begins with
        Part to{};   ///< what it is before or ends with

        /// The first and the last day that is meant; invalid where there is none.
        QDate first() const;
        QDate last() const;
    };

    PhotoDate() = default;
    /// The date of any bytes, up to the first zero and cut to the width; bytes that mean nothing are kept.
    static PhotoDate fromEdtf(QByteArrayView text);
    /// A day or, with a valid time, a moment of it; none for an invalid date.
    static PhotoDate of(QDate day, QTime time = {});

    QByteArray edtf() const;
    Parts parts() const;

    bool isNone() const { return m_text.front() == '\0'; }
    bool isUnderstood() const;
    /// The one whole day that it is, with or without a time; invalid for anything vaguer.
    QDate day() const;
    /// The time of that day; invalid where none is known.
    QTime time() const;
    /// The first day that it may mean; invalid where it has none.
    QDate first() const { return parts().first(); }
    /// The last day that it may mean; invalid where it has none.
    QDate last() const { return parts().last(); }
    /// The year that it lies in; 0 where it is in more than one, or none. A winter is of the year in which it
    /// begins.
    int year() const;

    /// By which pictures stand one after the other: vaguer dates before those that they hold, "before 1950"
    /// at the end of 1949, none behind all others.
    qint64 sortKey() const;

    /// The same so many seconds later; a date without a time moves by the whole days in them, and anything
    /// vaguer than a day stays as it is.
    PhotoDate shifted(qint64 seconds) const;

    bool operator==(const PhotoDate &) const = default;

private:
    std::array<char, width> m_text{};
};
