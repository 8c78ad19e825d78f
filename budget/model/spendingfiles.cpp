// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/spendingfiles.h"

#include "shell/core/reservednames.h"
#include "storage/changeset.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <string_view>
#include <unordered_map>

using namespace Qt::Literals::StringLiterals;
using namespace std::literals;

namespace {

constexpr std::string_view head = "Quillery spent amounts "sv;
constexpr int version = 1;
constexpr qsizetype shortestUsualLine = 32;
constexpr std::size_t mostDigits = 12; ///< of an amount: sums of them stay exact

/// A number of digits alone; -1 for anything else.
qint64 number(std::string_view digits)
{
    if (digits.empty() || digits.size() > mostDigits)
        return -1;
    qint64 value = 0;
    for (const char digit : digits) {
        if (digit < '0' || digit > '9')
            return -1;
        value = value * 10 + (digit - '0');
    }
    return value;
}

/// "42.50" and "-3.20"; nothing for any other form.
std::optional<qint64> cents(std::string_view text)
{
    const bool isNegative = text.starts_with('-');
    text.remove_prefix(isNegative ? 1 : 0);
    if (text.size() < 4 || text[text.size() - 3] != '.')
        return {};
    const qint64 whole = number(text.substr(0, text.size() - 3));
    const qint64 rest = number(text.substr(text.size() - 2));
    if (whole < 0 || rest < 0)
        return {};
    return (isNegative ? -1 : 1) * (whole * 100 + rest);
}

/// The days of a year by the texts of their dates, which are all of one form.
class YearDays
{
public:
    explicit YearDays(int year)

    {
        for (int month = 1; month <= 12; ++month)
            m_months[std::size_t(month - 1)] = QDate(year, month, 1);
        for (int digit = 3; digit >= 0; --digit, year /= 10)
            m_digits[std::size_t(digit)] = char('0' + year % 10);
    }

    /// Of "2026-03-14"; an invalid date for anything else.
    QDate date(std::string_view text) const
    {
        if (text.size() != 10 || text.substr(0, 4) != std::string_view(m_digits.data(), 4) ||
            text[4] != '-' || text[7] != '-')
            return {};
        const qint64 month = number(text.substr(5, 2));
        const qint64 day = number(text.substr(8, 2));
        if (month < 1 || month > 12 || day < 1)
            return {};
        const QDate first = m_months[std::size_t(month - 1)];
        const QDate date = QDate::fromJulianDay(first.toJulianDay() + day - 1);
        return day <= 28 || day <= first.daysInMonth() ? date : QDate();
    }

private:
    std::array<QDate, 12> m_months;
    std::array<char, 4> m_digits{};
};

/// Texts that come again and again: each is made once.
class Items
{
public:
    const QString &of(std::string_view bytes)
    {
        if (bytes.empty())
            return m_none;
        const std::size_t length = bytes.size();
        const std::size_t mixed = length + std::size_t(uchar(bytes[length / 2])) * 5 +
                                  std::size_t(uchar(bytes[length - 1])) * 7 +
                                  std::size_t(uchar(bytes[length < 2 ? 0 : length - 2])) * 29;
        Last &last = m_last[mixed % m_last.size()];
        if (last.item && last.bytes == bytes)
            return *last.item;
        const auto [at, isNew] = m_all.try_emplace(bytes);
        if (isNew)
            at->second = FileText::plain({bytes.data(), qsizetype(bytes.size())}).trimmed();
        last = {bytes, &at->second};
        return at->second;
    }

private:
    struct Last {
        std::string_view bytes;
        const QString *item = nullptr;
    };

    QString m_none;
    std::array<Last, 128> m_last{}; ///< where most of them are found again
    std::unordered_map<std::string_view, QString> m_all;
};

/// Reads a file, a line at a time, without copying anything but what is not understood.
class Reader
{
public:
    Reader(const QByteArray &file, int year)
        : m_file(new FileText::File(file))
        , m_days(year)
    {}

    SpendingFiles::Found read()
    {
        std::string_view bytes(m_file->bytes.constData(), std::size_t(m_file->bytes.size()));
        m_found.state = SpendingFiles::State::Whole;
        m_found.spending.amounts.reserve(m_file->bytes.size() / shortestUsualLine);
        const bool isText = m_file->bytes.isValidUtf8();
        for (bool isFirst = true; !bytes.empty(); isFirst = false) {
            const std::size_t end = bytes.find('\n');
            const std::string_view line = bytes.substr(0, end);
            bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end + 1);
            if (line.empty() || (isFirst && takeHead(line)))
                continue;
            if (!(isText || view(line).isValidUtf8()) || !take(line))
                m_found.spending.kept.append(view(line).toByteArray());
        }
        return std::move(m_found);
    }

private:
    static QByteArrayView view(std::string_view line) { return {line.data(), qsizetype(line.size())}; }

    static std::string_view withoutReturn(std::string_view line)
    {
        line.remove_suffix(line.ends_with('\r') ? 1 : 0);
        return line;
    }

    /// What stands before the next tab, which goes with it; all of `line` where there is none.
    static std::string_view takePart(std::string_view &line)
    {
        const std::size_t end = line.find('\t');
        const std::string_view part = line.substr(0, end);
        line.remove_prefix(end == std::string_view::npos ? line.size() : end + 1);
        return part;
    }

    bool takeHead(std::string_view line)
    {
        line = withoutReturn(line);
        if (!line.starts_with(head))
            return false;
        if (number(line.substr(head.size())) != version)
            m_found.state = SpendingFiles::State::Newer;
        return true;
    }

    bool take(std::string_view line)
    {
        line = withoutReturn(line);
        if (line.starts_with("spent\t"sv))
            return takeAmount(line.substr(6));
        const auto tabs = std::ranges::count(line, '\t');
        const std::string_view kind = takePart(line);
        if (kind == "due"sv && tabs == 2)
            return takeDueDay(line);
        if (kind == "paid"sv && tabs == 3)
            return takePaidMark(line);
        if (kind == "rule"sv && tabs == 2) {
            const QString item = m_items.of(takePart(line));
            m_found.spending.rules.append({FileText::plain(view(line)), item});
            return true;
        }
        return false;
    }

    bool takeAmount(std::string_view line)
    {
        const QDate date = m_days.date(line.substr(0, 10));
        if (!date.isValid() || line.size() < 12 || line[10] != '\t')
            return false;
        line.remove_prefix(11);
        std::size_t end = 0;
        while (end < line.size() && line[end] != '\t')
            ++end;
        const std::optional<qint64> amount = cents(line.substr(0, end));
        if (!amount || end == line.size())
            return false;
        line.remove_prefix(end + 1);
        end = line.find('\t');
        if (end == std::string_view::npos)
            return false;
        const std::string_view note = line.substr(end + 1);
        if (note.find('\t') != std::string_view::npos)
            return false;
        SpentAmount &spent = m_found.spending.amounts.emplaceBack();
        spent.date = date;
        spent.cents = *amount;
        spent.item = m_items.of(line.substr(0, end));
        spent.note = FileText(m_file, note.data(), qsizetype(note.size()));
        return true;
    }

    bool takeDueDay(std::string_view line)
    {
        const qint64 day = number(takePart(line));
        if (day < 1 || day > 31)
            return false;
        m_found.spending.dueDays.append({m_items.of(line), int(day)});
        return true;
    }

    bool takePaidMark(std::string_view line)
    {
        const qint64 month = number(takePart(line));
        const std::optional<qint64> amount = cents(takePart(line));
        if (month < 1 || month > 12 || !amount)
            return false;
        m_found.spending.paid.append({int(month), m_items.of(line), *amount});
        return true;
    }

    FileText::FilePointer m_file;
    YearDays m_days;
    SpendingFiles::Found m_found;
    Items m_items;
};

} // namespace

QString SpendingFiles::fileName(int year)
{
    return ReservedNames::spending + QString::number(year);
}

SpendingFiles::Found SpendingFiles::read(int year) const
{
    const QString path = m_folder.filePath(fileName(year));
    if (!QFileInfo::exists(path)) {
        Found found;
        if (m_folder.exists(fileName(year - 1))) {
            const Spending before = read(year - 1).spending;
            found.spending.dueDays = before.dueDays;
            found.spending.rules = before.rules;
        }
        return found;
    }
    QFile file(path);
    const bool isOpen = QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    const QByteArray bytes = isOpen ? file.readAll() : QByteArray();
    if (!isOpen || file.error() != QFile::NoError)
        return {{}, State::OutOfReach};
    return decode(bytes, year);
}

void SpendingFiles::addTo(ChangeSet &change, int year, const Spending &spending) const
{
    change.replace(fileName(year), encode(spending));
}

QList<int> SpendingFiles::years() const
{
    QList<int> years;
    const QString beginning = ReservedNames::spending;
    for (const QString &name : QDir(m_folder.path()).entryList({beginning + u"????"_s}, QDir::Files)) {
        if (const int year = name.last(4).toInt(); year > 0 && !years.contains(year))
            years.append(year);
    }
    std::ranges::sort(years);
    return years;
}

SpendingFiles::Found SpendingFiles::decode(const QByteArray &bytes, int year)
{
    return Reader(bytes, year).read();
}

QByteArray SpendingFiles::encode(const Spending &spending)
{
    QByteArray bytes;
    bytes.reserve(spending.amounts.size() * 64);
    bytes += QByteArray(head.data(), qsizetype(head.size())) + QByteArray::number(version) + '\n';
    for (const DueDay &due : spending.dueDays)
        bytes += "due\t" + QByteArray::number(due.day) + '\t' + FileText::escaped(due.item) + '\n';
    for (const ImportRule &rule : spending.rules)
        bytes += "rule\t" + FileText::escaped(rule.item) + '\t' + FileText::escaped(rule.text) + '\n';
    for (const PaidMark &mark : spending.paid)
        bytes += "paid\t" + QByteArray::number(mark.month) + '\t' + centsText(mark.cents).toLatin1() + '\t' +
                 FileText::escaped(mark.item) + '\n';
    for (const SpentAmount &amount : spending.amounts)
        bytes += "spent\t" + amount.date.toString(Qt::ISODate).toLatin1() + '\t' +
                 centsText(amount.cents).toLatin1() + '\t' + FileText::escaped(amount.item) + '\t' +
                 amount.note.bytes() + '\n';
    for (const QByteArray &line : spending.kept)
        bytes += line + '\n';
    return bytes;
}
