// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/monthheading.h"

#include "shell/controls/controls.h"
#include "shell/look/theme.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLocale>
#include <QMenu>
#include <QSpinBox>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int monthsPerYear = 12;
constexpr int narrowBelow = 264;
constexpr int firstYear = 1;
constexpr int lastYear = 9999;

QString monthName(int month)
{
    return QLocale::c().standaloneMonthName(month);
}

} // namespace

MonthHeading::MonthHeading(QWidget *parent)
    : QWidget(parent)
    , m_previous(makeStep(u"monthPrevious"_s, u"Previous month"_s, -1))
    , m_name(makeWord(u"monthName"_s))
    , m_yearWord(makeWord(u"monthYear"_s))
    , m_yearBox(named(new QSpinBox(this), u"monthYearBox"_s))
    , m_next(makeStep(u"monthNext"_s, u"Next month"_s, 1))
{
    makeMonths();
    m_yearBox->setRange(firstYear, lastYear);
    m_yearBox->setFrame(false);
    m_yearBox->setAccessibleName(u"Year"_s);
    m_yearBox->hide();
    connect(m_yearWord, &QToolButton::clicked, this, &MonthHeading::openYear);
    connect(m_yearBox, &QSpinBox::editingFinished, this, &MonthHeading::takeYear);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(m_previous);
    row->addStretch(1);
    for (QWidget *part : std::initializer_list<QWidget *>{m_name, m_yearWord, m_yearBox})
        row->addWidget(part);
    row->addStretch(1);
    row->addWidget(m_next);
    paintSteps();
}

QToolButton *MonthHeading::makeStep(const QString &name, const QString &word, int months)
{
    QToolButton *step = makeWord(name);
    step->setAutoRepeat(true);
    step->setIconSize(QSize(20, 20));
    step->setToolTip(word);
    step->setAccessibleName(word);
    connect(step, &QToolButton::clicked, this, [this, months] { emit stepped(months); });
    return step;
}

/// A flat button that Tab passes by: the arrow and page keys do the same from among the days.
QToolButton *MonthHeading::makeWord(const QString &name)
{
    auto *word = named(new QToolButton(this), name);
    word->setAutoRaise(true);
    word->setFocusPolicy(Qt::NoFocus);
    return word;
}

void MonthHeading::makeMonths()
{
    auto *menu = new QMenu(m_name);
    for (int month = 1; month <= monthsPerYear; ++month)
        menu->addAction(monthName(month), this, [this, month] { emit picked(m_year, month); });
    m_name->setPopupMode(QToolButton::InstantPopup);
    m_name->setMenu(menu);
}

void MonthHeading::setMonth(int year, int month)
{
    m_year = year;
    m_month = month;
    m_name->setText(monthName(month));
    m_yearWord->setText(QString::number(year));
}

void MonthHeading::openYear()
{
    m_yearBox->setValue(m_year);
    m_yearWord->hide();
    m_yearBox->show();
    m_yearBox->setFocus(Qt::MouseFocusReason);
    m_yearBox->selectAll();
}

void MonthHeading::takeYear()
{
    if (!m_yearWord->isHidden())
        return; // it is taken already: the box tells once more when it loses the focus
    m_yearWord->show();
    if (m_yearBox->hasFocus())
        parentWidget()->setFocus(Qt::OtherFocusReason);
    m_yearBox->hide();
    emit picked(m_yearBox->value(), m_month);
}

/// Enter ends the typing of a year, and presses no button of the window.
void MonthHeading::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        QWidget::keyPressEvent(event);
}

void MonthHeading::paintSteps()
{
    const Icons::Scheme scheme = Theme::of(this).scheme;
    const QColor ink = palette().color(QPalette::WindowText);
    m_previous->setIcon(Icons::tinted("previous"_L1, scheme, ink));
    m_next->setIcon(Icons::tinted("next"_L1, scheme, ink));
}

void MonthHeading::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_next)
        paintSteps();
}

/// In a narrow sheet it takes a smaller step, so that "September" stays whole.
void MonthHeading::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    const QFont font = width() < TypeScale::wide(narrowBelow) ? TypeScale::strong() : TypeScale::group();
    for (QToolButton *word : {m_name, m_yearWord}) {
        if (word->font() != font)
            word->setFont(font);
    }
}
