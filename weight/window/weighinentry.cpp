// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/window/weighinentry.h"

#include "shell/controls/controls.h"
#include "shell/controls/datebox.h"
#include "shell/controls/datepicker.h"
#include "shell/program/program.h"
#include "weight/model/weightdates.h"
#include "weight/model/weightnumbers.h"
#include "weight/window/datecheck.h"
#include "weight/window/openperson.h"
#include "weight/window/windowlines.h"

#include <QKeyEvent>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int longestWeight = 12;

bool isEnter(const QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<const QKeyEvent *>(event)->key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace

WeighInEntry::WeighInEntry(const WeightDesk &desk, DatePicker *picker, QWidget *parent)
    : QWidget(parent)
    , m_desk(desk)
    , m_date(named(new DateBox(desk.dateCheck.reading(), picker, this), u"weighInDate"_s))
    , m_weight(named(new FieldBox(this), u"weighInWeight"_s))
    , m_fact(named(makeQuietLabel({}, this), u"weighInFact"_s))
    , m_rows(new QVBoxLayout(this))
    , m_row(new QHBoxLayout)
{
    m_date->setForm(WeightDates::tableText);
    m_date->setFixedWidth(boxWidth(u"00/00/0000"_s, 128));
    m_weight->setFixedWidth(boxWidth(u"0000.0"_s, 104));
    m_weight->setByteLimit(longestWeight);
    m_rows->setContentsMargins({});
    m_rows->setSpacing(4);
    m_rows->addLayout(m_row);
    m_row->setSpacing(12);
    m_row->addLayout(labelled(u"Date of Weigh In:"_s, m_date));
    m_row->addLayout(labelled(u"Current Weight:"_s, m_weight));
    m_row->addWidget(m_fact, 1, Qt::AlignBottom);
    setFocusProxy(m_weight);
    for (QLineEdit *box : {static_cast<QLineEdit *>(m_date), static_cast<QLineEdit *>(m_weight)})
        box->installEventFilter(this);
    connect(m_weight, &FieldBox::refused, this, &WeighInEntry::said);
    connect(m_date, &FieldBox::refused, this, &WeighInEntry::said);
    connect(m_weight, &QLineEdit::textChanged, this, &WeighInEntry::showFact);
    connect(m_date, &DateBox::dateChanged, this, &WeighInEntry::showFact);
    connect(picker, &DatePicker::picked, this, [this](const DateBox *box) {
        if (box == m_date)
            takePicked();
    });
    clear();
}

void WeighInEntry::takePicked()
{
    if (const auto refusal = m_desk.dateCheck.tableDate(m_date->text(), {}).refusal) {
        m_date->setDate(m_desk.program.clock.today());
        emit noticed(*refusal);
    } else {
        typeWeight();
    }
}

void WeighInEntry::setButton(QPushButton *button)
{
    button->setParent(this);
    m_row->insertWidget(2, button, 0, Qt::AlignBottom);
    setTabOrder(m_date, m_weight);
    setTabOrder(m_weight, button);
}

WeighIn WeighInEntry::typed() const
{
    return {m_date->text(), m_weight->text()};
}

bool WeighInEntry::isTyped() const
{
    return !m_weight->text().trimmed().isEmpty();
}

void WeighInEntry::clear()
{
    m_date->setDate(m_desk.program.clock.today());
    m_weight->setText({}); // unlike clear(), it leaves Ctrl+Z to the window
}

void WeighInEntry::refresh()
{
    const bool isLocked = !m_desk.person.whyLocked().isEmpty();
    m_date->setLocked(isLocked);
    m_weight->setLocked(isLocked);
    showFact();
}

void WeighInEntry::typeDate()
{
    m_date->setFocus();
    m_date->selectAll();
}

void WeighInEntry::typeWeight()
{
    m_weight->setFocus();
    m_weight->selectAll();
}

/// What is told of the weight stands behind the boxes; where the line is too short for that, below them in a
/// line of its own, which is kept free so that nothing moves while the weight is typed.
void WeighInEntry::placeFact()
{
    const QFontMetrics metrics(m_fact->font());
    int needed = metrics.horizontalAdvance(TrackerLines::fromBeginning(u"-000.0"_s));
    for (int i = 0; i < m_row->count(); ++i) {
        if (m_row->itemAt(i)->widget() != m_fact)
            needed += m_row->itemAt(i)->sizeHint().width() + m_row->spacing();
    }
    const bool isBelow = needed > width();
    if (isBelow == m_isFactBelow)
        return;
    m_isFactBelow = isBelow;
    m_row->removeWidget(m_fact);
    m_rows->removeWidget(m_fact);
    if (isBelow)
        m_rows->addWidget(m_fact);
    else
        m_row->addWidget(m_fact, 1, Qt::AlignBottom);
    m_fact->setMinimumHeight(isBelow ? metrics.height() : 0);
    showFact();
}

void WeighInEntry::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    placeFact();
}

/// What the weight is to the last one, and to the goal.
void WeighInEntry::showFact()
{
    const WeightSheet &sheet = m_desk.person.sheet();
    const std::optional<float> weight = WeightNumbers::number(m_weight->text());
    if (!weight) {
        m_fact->setText({});
        return;
    }
    QStringList facts;
    const qsizetype rows = sheet.weighIns.rowCount();
    if (const auto last = rows > 0 ? sheet.weighIns.number(rows - 1) : std::nullopt)
        facts << TrackerLines::fromLast(WeightNumbers::difference(double(*weight - *last)));
    if (const auto beginning = sheet.beginningWeight())
        facts << TrackerLines::fromBeginning(WeightNumbers::difference(double(*weight - *beginning)));
    m_fact->setText(facts.join(m_isFactBelow ? u", "_s : u"\n"_s));
}

/// Enter in either box adds the weigh-in; Esc gives up what was typed before it leaves the view.
bool WeighInEntry::eventFilter(QObject *watched, QEvent *event)
{
    if (isEnter(event)) {
        m_date->tidy();
        emit entered();
        return true;
    }
    const bool isEscape = event->type() == QEvent::KeyPress && watched == m_weight &&
                          static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape;
    if (!isEscape || !isTyped())
        return QWidget::eventFilter(watched, event);
    clear();
    return true;
}
