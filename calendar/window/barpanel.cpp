// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/barpanel.h"

#include "calendar/window/windowlines.h"
#include "shell/controls/dayspan.h"
#include "shell/controls/pastefilter.h"
#include "shell/look/theme.h"
#include "shell/pages/gridtypes.h"
#include "shell/program/program.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QPainter>
#include <QRadioButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize swatch(36, 18);
constexpr int tonesAcross = 3;

QIcon swatchOf(int tone, double pixelRatio)
{
    QPixmap picture(swatch * pixelRatio);
    picture.setDevicePixelRatio(pixelRatio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(GridColors::toneEdge(tone));
    painter.setBrush(GridColors::tone(tone));
    painter.drawRoundedRect(QRectF(QPointF(), swatch).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    return picture;
}

} // namespace

BarPanel::BarPanel(const Program &program, QWidget *window, QWidget *parent)
    : TaskPanel(u"barPanel"_s, u"Bar over Days"_s, parent)
    , m_text(named(new QLineEdit(this), u"barText"_s))
    , m_days(new DaySpan(u"bar"_s, {program.state.dateStyle, program.clock}, program.settings, window, this))
{
    new PasteFilter(m_text, Characters::All);
    m_text->setMaxLength(int(DayLine::most));
    m_text->setFixedWidth(boxWidth({}, 420));
    auto *content = new QWidget(this);
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins({});
    column->setSpacing(12);
    column->addLayout(labelled(u"Words"_s, m_text));
    column->addLayout(labelled(u"Days"_s, m_days));
    column->addLayout(labelled(u"Tone"_s, makeTones()));
    column->addStretch(1);
    setContent(content);
    setFocusProxy(m_text);
    m_remove = addButton(u"barRemove"_s, u"&Remove Bar"_s, ButtonKind::Plain, Side::Left);
    QPushButton *keep = addButton(u"barKeep"_s, u"&Keep"_s, ButtonKind::Main);
    setLeaveButton(u"barCancel"_s, u"C&ancel"_s);
    connect(keep, &QPushButton::clicked, this, &BarPanel::accept);
    connect(m_text, &QLineEdit::returnPressed, this, &BarPanel::accept);
    connect(m_remove, &QPushButton::clicked, this, &BarPanel::removeWanted);
}

QWidget *BarPanel::makeTones()
{
    auto *tones = new QWidget(this);
    auto *grid = new QGridLayout(tones);
    grid->setContentsMargins({});
    grid->setHorizontalSpacing(20);
    grid->setVerticalSpacing(8);
    grid->setColumnStretch(tonesAcross, 1);
    for (int tone = 1; tone <= CalendarSpan::tones; ++tone) {
        auto *button = named(new QRadioButton(CalendarWindowLines::toneName(tone), tones),
                             u"barTone_"_s + QString::number(tone));
        button->setIcon(swatchOf(tone, devicePixelRatioF()));
        button->setIconSize(swatch);
        grid->addWidget(button, (tone - 1) / tonesAcross, (tone - 1) % tonesAcross);
        m_tones[std::size_t(tone - 1)] = button;
    }
    return tones;
}

void BarPanel::start(const CalendarSpan &span, bool isThere)
{
    m_text->setText(span.text);
    m_days->setDays(span.from, span.lastDay());
    m_tones[std::size_t(std::clamp(span.tone, 1, CalendarSpan::tones) - 1)]->setChecked(true);
    m_remove->setVisible(isThere);
    setWords({});
}

CalendarSpan BarPanel::span() const
{
    int tone = 1;
    for (int each = 1; each <= CalendarSpan::tones; ++each)
        tone = m_tones[std::size_t(each - 1)]->isChecked() ? each : tone;
    return {m_days->from(), m_days->to(), tone, m_text->text().trimmed()};
}

void BarPanel::accept()
{
    if (const QString why = m_days->refuse(); !why.isEmpty())
        setWords(why);
    else
        emit accepted();
}

void BarPanel::refuse(const QString &why)
{
    setWords(why);
    m_text->setFocus();
}
