// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/window/comingup.h"

#include "planner/model/lines.h"
#include "planner/model/plannerfiles.h"
#include "shell/controls/controls.h"
#include "shell/core/area.h"
#include "shell/core/dates.h"
#include "shell/look/icons.h"
#include "shell/look/theme.h"
#include "shell/program/functionfaces.h"
#include "shell/program/program.h"

#include <QEvent>
#include <QListView>
#include <QPainter>
#include <QShortcut>
#include <QStyledItemDelegate>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int daysAhead = 13;
constexpr int signWidth = 32;
constexpr int rowGap = 10;

/// Behind the row that has the focus, on a panel of any colour.
QColor markOf(const QPalette &panel)
{
    QColor mark = panel.color(QPalette::WindowText);
    mark.setAlphaF(0.12F);
    return mark;
}

/// Two lines beside a sign: what there is, and from where.
class NoteDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const override
    {
        return {120, QFontMetrics(TypeScale::body()).height() + QFontMetrics(TypeScale::label()).height() +
                         rowGap};
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        painter->save();
        if (option.state & QStyle::State_HasFocus)
            painter->fillRect(option.rect.adjusted(0, 0, 0, -rowGap / 2), markOf(option.widget->palette()));
        const QPalette &palette = option.widget->palette();
        const QIcon icon = index.data(ComingUpModel::IconRole).value<QIcon>();
        QPixmap sign = icon.pixmap(QSize(20, 20), painter->device()->devicePixelRatioF());
        if (palette.color(QPalette::WindowText) != Theme::of(option.widget).text) {
            // On a panel of the user's colour a sign in its own hue could vanish.
            QPainter ink(&sign);
            ink.setCompositionMode(QPainter::CompositionMode_SourceIn);
            ink.fillRect(sign.rect(), palette.color(QPalette::WindowText));
        }
        painter->drawPixmap(option.rect.topLeft(), sign);
        const QRect place = option.rect.adjusted(signWidth, 0, 0, 0);
        const auto line = [&](const QFont &font, QPalette::ColorRole role, int top, const QString &text) {
            const QFontMetrics metrics(font);
            painter->setFont(font);
            painter->setPen(palette.color(role));
            painter->drawText(QRect(place.left(), top, place.width(), metrics.height()), Qt::AlignLeft,
                              metrics.elidedText(text, Qt::ElideRight, place.width()));
            return top + metrics.height();
        };
        const int below = line(TypeScale::body(), QPalette::WindowText, place.top(), index.data().toString());
        line(TypeScale::label(), ThemeRole::quiet, below, index.data(ComingUpModel::SourceRole).toString());
        painter->restore();
    }
};

QLatin1StringView iconOf(const HouseholdNote &note)
{
    const bool hasSign = note.function == Function::AddressBook || note.note.kind == NoteKind::Overdue;
    return hasSign ? HouseholdNotes::sign({note}) : QLatin1StringView(FunctionFaces::of(note.function).icon);
}

/// Whether one of the day's rows says what the note says.
bool holds(const PlannerDay &day, const DayNote &note)
{
    static_assert(PlannerDay::textWidth == DayNote::appointmentRoom);
    return std::ranges::any_of(day.texts, [&](const QString &row) { return note.isSaidBy(row); });
}

} // namespace

ComingUpModel::ComingUpModel(const Program &program, const PlannerFiles &files, QObject *parent)
    : QAbstractListModel(parent)
    , m_program(program)
    , m_files(files)
    , m_source(program)
{}

void ComingUpModel::load(QDate from, QDate to)
{
    beginResetModel();
    m_notes = m_source.all(from, to);
    m_notes.removeIf([days = m_files.days(from, to)](const HouseholdNote &note) {
        const auto day = days.find(note.note.date);
        return note.note.kind == NoteKind::Done || (day != days.end() && holds(day->second, note.note));
    });
    endResetModel();
}

void ComingUpModel::open(const QModelIndex &index) const
{
    if (index.isValid())
        m_source.open(m_notes.at(index.row()));
}

int ComingUpModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_notes.size());
}

/// "today", "tomorrow", "on Tuesday" within the six days after today; any other date as it is.
QString ComingUpModel::whenText(QDate date) const
{
    const QString day = Dates::nearDay(date, m_program.clock.today());
    return day.isEmpty() ? Dates::statusText(date, m_program.state.dateStyle) : day;
}

QVariant ComingUpModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const HouseholdNote &note = m_notes.at(index.row());
    QStringList sources{note.note.unsaidState(), note.note.source, whenText(note.note.date)};
    sources.removeAll({});
    const QString source = sources.join(u", "_s);
    switch (role) {
    case Qt::DisplayRole:
        return note.note.text;
    case SourceRole:
        return source;
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
        return QString(note.note.text + u" ("_s + source + u')');
    case IconRole:
        return Icons::icon(iconOf(note), Theme::of(static_cast<QWidget *>(nullptr)).scheme);
    default:
        return {};
    }
}

ComingUp::ComingUp(const Program &program, const PlannerFiles &files, QWidget *parent)
    : QWidget(parent)
    , m_model(new ComingUpModel(program, files, this))
    , m_list(named(new QListView(this), u"comingUp"_s))
    , m_nothing(makeQuietLabel({}, this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    layout->addWidget(makeHeading(u"Coming up"_s, this));
    layout->addWidget(m_nothing);
    layout->addWidget(m_list, 1);
    layout->addStretch(0); // takes the list's place below the words while there is none
    m_nothing->setWordWrap(true);
    m_list->setModel(m_model);
    m_list->setItemDelegate(new NoteDelegate(m_list));
    m_list->setAccessibleName(u"Coming up"_s);
    m_list->setSelectionMode(QAbstractItemView::NoSelection);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setFocusPolicy(Qt::TabFocus);
    m_list->setMinimumHeight(44);
    m_list->viewport()->setAutoFillBackground(false);
    m_list->viewport()->setCursor(Qt::PointingHandCursor);
    connect(m_list, &QListView::clicked, m_model, &ComingUpModel::open);
    // Not activated(), which some desktops send with a click as well.
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto *opens = new QShortcut(key, m_list);
        opens->setContext(Qt::WidgetShortcut);
        connect(opens, &QShortcut::activated, m_list, [this] { m_model->open(m_list->currentIndex()); });
    }
}

void ComingUp::setDate(QDate date)
{
    m_date = date;
    if (std::exchange(m_isLoading, true))
        return;
    QTimer::singleShot(0, this, &ComingUp::load);
}

void ComingUp::refresh()
{
    if (m_date.isValid())
        setDate(m_date);
}

bool ComingUp::event(QEvent *event)
{
    if (event->type() == QEvent::WindowActivate || event->type() == QEvent::Show)
        refresh();
    return QWidget::event(event);
}

void ComingUp::load()
{
    m_isLoading = false;
    m_model->load(m_date, m_date.addDays(daysAhead));
    m_nothing->setText(PlannerLines::nothingComing(m_model->source().passedOver()));
    m_nothing->setVisible(m_model->rowCount() == 0);
    m_list->setVisible(m_model->rowCount() > 0);
}
