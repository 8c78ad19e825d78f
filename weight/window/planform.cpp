// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/window/planform.h"

#include "shell/controls/controls.h"
#include "shell/controls/datebox.h"
#include "shell/controls/datepicker.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"
#include "weight/model/weightdates.h"
#include "weight/window/commentsbox.h"
#include "weight/window/datecheck.h"
#include "weight/window/windowlines.h"

#include <QEvent>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int rowGap = 10;
constexpr int boxGap = 14;
constexpr int greatestWidth = 860;
/// From this width on three boxes stand in a row.
constexpr int foldedBelow = 560;

QString caption(std::size_t field)
{
    static const std::array<QString, PlanForm::count> captions{u"Individual Name:"_s,
                                                               u"Beginning Date:"_s,
                                                               u"Beginning Weight:"_s,
                                                               u"Goal Weight:"_s,
                                                               u"Average Number of Days Per Week:"_s,
                                                               u"Average Time Per Exercise Period:"_s,
                                                               u"Types of Exercise:"_s};
    return captions[field];
}

} // namespace

PlanForm::PlanForm(const WeightDesk &desk, DatePicker *picker, QWidget *parent)
    : QWidget(parent)
    , m_comments(new CommentsBox(u"Text3"_s, this))
{
    makeBoxes(desk, picker);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins({});
    rows->setSpacing(rowGap);
    auto *name = labelledBox(WeightSheet::Name);
    auto *note = named(makeQuietLabel(TrackerLines::yearNote(), this), u"yearNote"_s);
    note->setWordWrap(true);
    name->addWidget(note);
    rows->addLayout(name);
    m_foldable[0] =
        addRow(rows, {WeightSheet::BeginningDate, WeightSheet::BeginningWeight, WeightSheet::GoalWeight});
    rows->addWidget(makeHeading(u"Exercise Plan and Information"_s, this));
    m_foldable[1] = addRow(rows, {WeightSheet::DaysPerWeek, WeightSheet::TimePerPeriod});
    addRow(rows, {WeightSheet::ExerciseTypes});
    rows->addLayout(labelledComments(), 1);
    setMaximumWidth(greatestWidth);
}

void PlanForm::makeBoxes(const WeightDesk &desk, DatePicker *picker)
{
    for (std::size_t i = 0; i < count; ++i) {
        if (i == WeightSheet::BeginningDate) {
            auto *date = new DateBox(desk.dateCheck.reading(), picker, this);
            date->setForm(WeightDates::longText);
            m_boxes[i] = date;
        } else {
            m_boxes[i] = new FieldBox(this);
        }
        named(m_boxes[i], u"Text1_"_s + QString::number(i));
        m_boxes[i]->setMinimumWidth(60);
        m_boxes[i]->installEventFilter(this);
        m_boxes[i]->setAccessibleName(caption(i).chopped(1));
        connect(m_boxes[i], &QLineEdit::textEdited, this, &PlanForm::edited);
        connect(m_boxes[i], &FieldBox::refused, this, &PlanForm::said);
        connect(m_boxes[i], &QLineEdit::editingFinished, this,
                [this, i] { emit entered(caption(i).chopped(1)); });
    }
    connect(picker, &DatePicker::picked, this,
            [this] { emit entered(caption(WeightSheet::BeginningDate).chopped(1)); });
    m_comments->installEventFilter(this);
    connect(m_comments, &CommentsBox::edited, this, &PlanForm::edited);
    connect(m_comments, &CommentsBox::refused, this, &PlanForm::said);
    connect(m_comments, &CommentsBox::left, this, [this] { emit entered(u"Additional Comments"_s); });
}

QVBoxLayout *PlanForm::labelledBox(WeightSheet::Field field)
{
    return labelled(makeFieldLabel(caption(field), m_boxes[field], this), m_boxes[field]);
}

/// The count of what was typed stands at the right of the label.
QVBoxLayout *PlanForm::labelledComments()
{
    auto *layout = new QVBoxLayout;
    layout->setSpacing(3);
    auto *line = new QHBoxLayout;
    line->addWidget(makeFieldLabel(u"Additional Comments:"_s, m_comments, this));
    line->addStretch(1);
    line->addWidget(m_comments->length());
    layout->addLayout(line);
    layout->addWidget(m_comments, 1);
    return layout;
}

QBoxLayout *PlanForm::addRow(QVBoxLayout *rows, std::initializer_list<WeightSheet::Field> fields)
{
    auto *row = new QBoxLayout(QBoxLayout::LeftToRight);
    row->setSpacing(boxGap);
    for (const WeightSheet::Field field : fields)
        row->addLayout(labelledBox(field), 1);
    rows->addLayout(row);
    return row;
}

void PlanForm::show(const WeightSheet &sheet)
{
    for (std::size_t i = 0; i < count; ++i) {
        if (m_boxes[i]->text() == sheet.fields[i] && m_shown[i] == sheet.fields[i])
            continue;
        m_boxes[i]->setText(sheet.fields[i]);
        m_boxes[i]->setCursorPosition(0);
        m_shown[i] = m_boxes[i]->text();
    }
    m_comments->show(sheet.shownComments());
}

WeightSheet PlanForm::typed(WeightSheet sheet) const
{
    for (std::size_t i = 0; i < count; ++i) {
        if (m_boxes[i]->text() != m_shown[i])
            sheet.fields[i] = m_boxes[i]->text().trimmed();
    }
    if (m_comments->isTouched())
        sheet.setShownComments(m_comments->toPlainText());
    return sheet;
}

void PlanForm::setLocked(bool locked)
{
    for (FieldBox *box : m_boxes)
        box->setLocked(locked);
    m_comments->setLocked(locked);
}

void PlanForm::resizeEvent(QResizeEvent *event)
{
    const bool isFolded = width() < TypeScale::wide(foldedBelow);
    for (QBoxLayout *row : m_foldable) {
        row->setDirection(isFolded ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
        row->setSpacing(isFolded ? rowGap : boxGap);
    }
    QWidget::resizeEvent(event);
}

bool PlanForm::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn && watched->isWidgetType())
        emit boxFocused(static_cast<QWidget *>(watched));
    return QWidget::eventFilter(watched, event);
}
