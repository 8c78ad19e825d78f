// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/model/addressbook.h"
#include "addressbook/model/dayofyear.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <limits>
#include <optional>
#include <utility>
#include <vector>

/// What the viewer shows beside each name.
enum class Information {
    Address,
    State,
    HomePhone,
    MobilePhone,
    FaxNumber,
    EmailAddress,
    BirthDate,
    AnniversaryDate,
    Pictures ///< no column of its own: what the picture list is printed from
};
inline constexpr int informationCount = 9;

/// Whose entries the viewer shows: all, or those with a birthday or an anniversary in one month.
struct DisplayRange {
    enum Kind { All, BirthMonth, AnniversaryMonth };

    Kind kind = All;
    int month = 0; ///< 1 to 12

    bool operator==(const DisplayRange &) const = default;
};

/// The rows of the viewer: a name and one piece of information for each live line of the name list, in record
/// order, narrowed by month, by a search or by hand, and sorted. Nothing is written; a missing file is made,
/// empty, as the address book does. Rows keep the bytes of the files and are decoded when they are shown, so
/// that 50,000 of them are read in one pass over each file.
class AddressViewer
{
public:
    static constexpr int allRows = std::numeric_limits<int>::max();

    AddressViewer(const DataFolder &folder, DateStyle style);

    /// Reads names and information anew; rows that were removed are back, search and order stay. Missing and
    /// damaged files give fewer rows or empty cells. At most `mostRows` lines of the name list are read.
    void load(Information information, const DisplayRange &range, int mostRows = allRows);
    /// Reads all the rows of the same information and range anew; rows that were removed stay away.
    void reload();
    Information information() const { return m_information; }
    const DisplayRange &range() const { return m_range; }
    /// Whether a list of more than `mostRows` lines may follow.
    bool isLongerThan(int mostRows) const;

    /// Rows that are shown now, in the order they are shown in.
    int count() const { return int(m_shown.size()); }
    QString name(int row) const;
    /// Address parts are joined by ", "; the picture's path under `Pictures`.
    QString information(int row) const;
    /// The record number of the row's entry; 0 when its line has none that can be read.
    int record(int row) const;
    /// Where the row's line stands in the index file: no other row has the same, whatever record they lead
    /// to.
    int line(int row) const;
    /// The row of the line with this name that leads to `record`, else the first one that leads there; -1
    /// when none is shown.
    int rowOf(QStringView name, int record) const;
    /// Rows of the book within the range, shown or not, without those that were removed.
    int nameCount() const;
    /// Whether the book holds no line at all.
    bool isBookEmpty() const { return m_isBookEmpty; }

    /// Shows only rows with `text` in the name or in the information, upper and lower case alike; blanks
    /// around it do not count. The empty text ends the search.
    void search(const QString &text);
    /// The text as it was searched for; empty while all rows are shown.
    const QString &searchText() const { return m_searchText; }

    /// Takes a row off the view until the next `load`.
    void removeRow(int row);
    /// Brings back a row with this name and record that was taken off. False: there is none.
    bool bringBack(QStringView name, int record);

    enum class Column { Name, Information };
    struct Order {
        Column column = Column::Name;
        bool isDescending = false;
        bool operator==(const Order &) const = default;
    };
    /// Orders the rows without regard to case and accents; dates by their place in the year; empty cells come
    /// last either way, and pictures are no order. Nothing is record order.
    void sort(std::optional<Order> order);
    const std::optional<Order> &order() const { return m_order; }

    /// Visits the entries of the rows as they are shown; empty ones for rows that lead to none. The visitor
    /// returns false to stop.
    void forEachShown(const std::function<bool(int row, const AddressEntry &entry)> &visit) const;

    /// Bytes held, room for growth included.
    qsizetype memoryUsed() const;

private:
    struct Row {
        quint32 nameAt = 0; ///< in `m_bytes`
        quint32 informationAt = 0;
        int record = 0;
        int line = 0; ///< its own record
        quint8 nameLength = 0;
        quint8 informationLength = 0;
        bool isInRange = false;
        bool isRemoved = false;
    };

    using RemovedLine = std::pair<int, QByteArray>; ///< its record and name
    void removeAgain(const RemovedLine &line);
    void readNames(int mostRows);
    void readInformation();
    void appendInformation(QByteArrayView record, Row &row);
    bool isInRange(QByteArrayView record) const;
    std::vector<quint32> rowsByRecord() const;
    void refresh();
    void sortShown();
    bool isShown(const Row &row, QByteArrayView foldedText) const;
    bool hasDates() const;
    QByteArrayView nameBytes(const Row &row) const;
    QByteArrayView informationBytes(const Row &row) const;
    const Row &shownRow(int row) const { return m_rows[m_shown[std::size_t(row)]]; }

    AddressBook m_book;
    DateStyle m_style;
    Information m_information = Information::Address;
    DisplayRange m_range;
    QString m_searchText;
    std::optional<Order> m_order;
    bool m_isBookEmpty = true;
    QByteArray m_bytes; ///< names, then information
    std::vector<Row> m_rows;
    std::vector<quint32> m_shown; ///< indexes of `m_rows`
};
