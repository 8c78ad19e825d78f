// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/window/shiftpanel.h"

#include "album/model/photodatewords.h"
#include "album/window/windowlines.h"
#include "shell/program/program.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QSpinBox>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int mostDays = 36500;
constexpr qint64 minute = 60;
constexpr qint64 hour = 60 * minute;
constexpr qint64 day = 24 * hour;
} // namespace

ShiftPanel::ShiftPanel(const Program &program, QWidget *parent)
    : TaskPanel(u"shiftPanel"_s, u"Shift Dates"_s, parent)
    , m_program(program)
    , m_days(makeNumber(u"shiftDays"_s, mostDays))
    , m_hours(makeNumber(u"shiftHours"_s, 23))
    , m_minutes(makeNumber(u"shiftMinutes"_s, 59))
    , m_way(named(new QComboBox(this), u"shiftWay"_s))
    , m_outcome(named(makeQuietLabel({}, this), u"shiftOutcome"_s))
{
    m_way->addItems({u"later"_s, u"earlier"_s});
    m_way->setAccessibleName(u"Later or earlier"_s);
    auto *content = new QWidget(this);
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins({});
    column->setSpacing(12);
    auto *row = new QHBoxLayout;
    row->setSpacing(12);
    row->addLayout(labelled(u"&Days"_s, m_days));
    row->addLayout(labelled(u"Hou&rs"_s, m_hours));
    row->addLayout(labelled(u"&Minutes"_s, m_minutes));
    row->addLayout(labelled(u"&Which way"_s, m_way));
    row->addStretch(1);
    column->addLayout(row);
    column->addWidget(m_outcome);
    column->addStretch(1);
    setContent(content);
    m_shift = addButton(u"shiftDates"_s, u"&Shift Dates"_s, ButtonKind::Main);
    setLeaveButton(u"shiftCancel"_s, u"&Cancel"_s);
    setFocusProxy(m_hours);
    for (QSpinBox *box : {m_days, m_hours, m_minutes})
        connect(box, &QSpinBox::valueChanged, this, &ShiftPanel::follow);
    connect(m_way, &QComboBox::currentIndexChanged, this, &ShiftPanel::follow);
    connect(m_shift, &QPushButton::clicked, this, [this] { emit accepted(seconds()); });
}

QSpinBox *ShiftPanel::makeNumber(const QString &name, int most)
{
    auto *box = named(new QSpinBox(this), name);
    box->setRange(0, most);
    box->setFixedWidth(boxWidth(u"36500"_s, 96));
    return box;
}

void ShiftPanel::start(const PhotoDate &first, int count)
{
    m_first = first;
    setTitle(AlbumWindowLines::shiftTitle(count));
    for (QSpinBox *box : {m_days, m_hours, m_minutes})
        box->setValue(0);
    m_hours->selectAll(); // to be typed over
    m_way->setCurrentIndex(0);
    follow();
}

qint64 ShiftPanel::seconds() const
{
    const qint64 length = m_days->value() * day + m_hours->value() * hour + m_minutes->value() * minute;
    return m_way->currentIndex() == 0 ? length : -length;
}

/// What the first of them will be.
void ShiftPanel::follow()
{
    const DateStyle &style = m_program.state.dateStyle;
    m_outcome->setText(AlbumWindowLines::shiftOutcome(
        PhotoDateWords::words(m_first, style), PhotoDateWords::words(m_first.shifted(seconds()), style)));
    setUnavailable(m_shift, seconds() == 0 ? AlbumWindowLines::noShift() : QString());
}

void ShiftPanel::keyPressEvent(QKeyEvent *event)
{
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && seconds() != 0)
        emit accepted(seconds());
    else
        TaskPanel::keyPressEvent(event);
}
