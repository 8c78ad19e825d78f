// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/monthpictures.h"

#include "calendar/model/calendaredits.h"
#include "calendar/window/opencalendars.h"
#include "calendar/window/sheetmaker.h"
#include "calendar/window/windowlines.h"
#include "shell/core/dates.h"
#include "shell/core/slicedwork.h"
#include "shell/look/theme.h"

#include <QLocale>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int across = 2;
constexpr int restsFor = 500; ///< milliseconds without a change before a picture is made anew
constexpr int around = 16;    ///< of a picture
constexpr double shape = 0.72;
constexpr int shortRole = Qt::UserRole; ///< "Mar 2027"

QList<QList<DayLine>> linesOf(const WallCalendar &calendar, QDate month)
{
    QList<QList<DayLine>> lines;
    const QDate end = month.addMonths(1);
    for (auto day = calendar.days.lowerBound(month); day != calendar.days.cend() && day.key() < end; ++day)
        lines.append(*day);
    return lines;
}

/// The picture with the name of its month below it; the one that is shown has a rim.
class MonthDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const Theme &theme = Theme::of(option.widget);
        const bool isCurrent = option.state & QStyle::State_Selected;
        const auto picture = index.data(Qt::DecorationRole).value<QPixmap>();
        QRect place({}, picture.deviceIndependentSize().toSize());
        place.moveCenter(option.rect.center());
        place.moveTop(option.rect.top() + around / 2);
        painter->save();
        if (option.state & QStyle::State_MouseOver)
            painter->fillRect(option.rect, theme.soft);
        painter->drawPixmap(place.topLeft(), picture);
        painter->setPen(QPen(isCurrent ? theme.accent : theme.line, isCurrent ? 2 : 1));
        painter->drawRect(isCurrent ? place.adjusted(-1, -1, 1, 1) : place.adjusted(0, 0, -1, -1));
        QFont font = TypeScale::label();
        font.setWeight(isCurrent ? QFont::DemiBold : QFont::Normal);
        painter->setFont(font);
        painter->setPen(option.palette.color(QPalette::Text));
        const QRect words(option.rect.left(), place.bottom() + 3, option.rect.width(),
                          painter->fontMetrics().height());
        const QString name = index.data().toString();
        const bool hasRoom = painter->fontMetrics().horizontalAdvance(name) <= words.width() - 4;
        painter->drawText(words, Qt::AlignHCenter | Qt::AlignTop,
                          hasRoom ? name : index.data(shortRole).toString());
        painter->restore();
    }

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const override
    {
        return static_cast<const QListView *>(option.widget)->gridSize();
    }
};

/// Apart from its lines.
bool hasSameRest(WallCalendar one, WallCalendar other)
{
    one.days.clear();
    other.days.clear();
    one.filled.clear();
    other.filled.clear();
    return one == other;
}

} // namespace

MonthPictures::MonthPictures(const OpenCalendars &calendars, const SheetMaker &sheets, QWidget *parent)
    : QListWidget(parent)
    , m_calendars(calendars)
    , m_sheets(sheets)
    , m_work(new SlicedWork(this))
{
    setObjectName(u"calendarMonths"_s);
    setAccessibleName(u"Months"_s);
    setViewMode(IconMode);
    setMovement(Static);
    setResizeMode(Adjust);
    setItemDelegate(new MonthDelegate(this));
    setMouseTracking(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    m_soon.setSingleShot(true);
    m_soon.setInterval(restsFor);
    connect(&m_soon, &QTimer::timeout, this, [this] { m_work->start([this] { return makeNext(); }); });
    connect(&calendars, &OpenCalendars::shown, this, &MonthPictures::startOver);
    connect(&calendars, &OpenCalendars::changed, this, &MonthPictures::follow);
    connect(this, &QListWidget::currentRowChanged, this, [this](int row) {
        if (!m_isSetting && row >= 0)
            emit chosen(monthOf(row));
    });
    connect(this, &QListWidget::itemActivated, this, &MonthPictures::entered);
}

QDate MonthPictures::monthOf(int row) const
{
    return m_calendars.calendar().month(row);
}

QString MonthPictures::wordsOf(QDate month) const
{
    int count = 0;
    for (const QList<DayLine> &lines : linesOf(m_calendars.calendar(), month))
        count += int(std::ranges::count_if(lines, [](const DayLine &line) { return !line.isRemoved(); }));
    return CalendarWindowLines::monthWords(month, count);
}

void MonthPictures::startOver()
{
    const QScopedValueRollback<bool> setting(m_isSetting, true);
    m_work->stop();
    clear();
    m_stale.clear();
    m_seen = m_calendars.calendar();
    if (!m_calendars.current())
        return;
    QPixmap empty(iconSize());
    empty.fill(Theme::of(this).field);
    for (int row = 0; row < m_seen.months; ++row) {
        const QDate month = monthOf(row);
        auto *item = new QListWidgetItem(QLocale::c().toString(month, u"MMMM yyyy"_s), this);
        item->setData(Qt::AccessibleTextRole, wordsOf(month));
        item->setData(shortRole, QLocale::c().toString(month, u"MMM yyyy"_s));
        item->setData(Qt::DecorationRole, empty);
        m_stale.insert(row);
    }
    fit();
    if (isVisible())
        m_soon.start(0);
}

void MonthPictures::follow()
{
    const WallCalendar &now = m_calendars.calendar();
    if (now.months != m_seen.months || now.from != m_seen.from) {
        const int row = currentRow();
        startOver();
        const QScopedValueRollback<bool> setting(m_isSetting, true);
        setCurrentRow(std::min(row, count() - 1));
        return;
    }
    const bool isAll = !hasSameRest(now, m_seen);
    for (int row = 0; row < count(); ++row) {
        if (isAll || linesOf(now, monthOf(row)) != linesOf(m_seen, monthOf(row)))
            m_stale.insert(row);
    }
    m_seen = now;
    if (!m_stale.isEmpty() && isVisible())
        m_soon.start(restsFor);
}

void MonthPictures::showEvent(QShowEvent *event)
{
    QListWidget::showEvent(event);
    if (!m_stale.isEmpty())
        m_soon.start(0); // when the window has been painted
}

bool MonthPictures::makeNext()
{
    if (m_stale.isEmpty() || !m_calendars.current())
        return false;
    // The one in sight first.
    const int row = m_stale.contains(currentRow()) ? currentRow() : *std::ranges::min_element(m_stale);
    m_stale.remove(row);
    if (QListWidgetItem *item = this->item(row)) {
        const QSize pixels = iconSize() * devicePixelRatioF();
        QPixmap picture = QPixmap::fromImage(m_sheets.picture(m_calendars.calendar(), monthOf(row), pixels));
        picture.setDevicePixelRatio(devicePixelRatioF());
        item->setData(Qt::DecorationRole, picture);
        item->setData(Qt::AccessibleTextRole, wordsOf(monthOf(row)));
    }
    return !m_stale.isEmpty();
}

void MonthPictures::setMonth(QDate month)
{
    const QScopedValueRollback<bool> setting(m_isSetting, true);
    const QDate from = m_calendars.calendar().from;
    setCurrentRow((month.year() - from.year()) * 12 + month.month() - from.month());
}

/// Two beside one another, as large as the pane has room for.
void MonthPictures::fit()
{
    constexpr int rim = 16; ///< of the list, with what it keeps free
    const int room = width() - rim - verticalScrollBar()->sizeHint().width();
    const int cell = std::max(60, room / across);
    const QSize picture(cell - around, int((cell - around) * shape));
    if (picture == iconSize())
        return;
    setIconSize(picture);
    setGridSize({cell, picture.height() + QFontMetrics(TypeScale::label()).height() + around});
    for (int row = 0; row < count(); ++row)
        m_stale.insert(row);
    if (isVisible())
        m_soon.start();
}

void MonthPictures::resizeEvent(QResizeEvent *event)
{
    fit();
    QListWidget::resizeEvent(event);
}
