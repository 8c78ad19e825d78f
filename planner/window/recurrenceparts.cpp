// How the recurrence panel is put together.

#include "planner/window/recurrencepanel.h"

#include "planner/window/recurrenceform.h"
#include "shell/controls/datebox.h"
#include "shell/controls/monthview.h"
#include "shell/core/slicedwork.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QProgressBar>
#include <QRadioButton>
#include <QScrollArea>
#include <QStackedWidget>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int dateWidth = 128;
constexpr int numberWidth = 64;
constexpr int widestBar = 640;
constexpr int twoColumnsFrom = 960;

/// A label that wraps where its column ends.
QLabel *makeNote(const QString &text, QWidget *parent)
{
    QLabel *note = makeQuietLabel(text, parent);
    note->setWordWrap(true);
    return note;
}

} // namespace

RecurrencePanel::RecurrencePanel(Program &program, QWidget *parent)
    : QWidget(parent)
    , m_program(program)
    , m_work(new SlicedWork(this))
    , m_title(named(new ElidedLabel(this), u"recurrenceTitle"_s))
    , m_form(new RecurrenceForm({program.state.dateStyle, program.clock}, this))
    , m_endBy(new QButtonGroup(this))
    , m_calendarSets(new QButtonGroup(this))
{
    m_title->setFont(TypeScale::windowTitle());
    auto *content = new QWidget;
    m_columns = new QBoxLayout(QBoxLayout::LeftToRight, content);
    m_columns->setContentsMargins(0, 0, 8, 0);
    m_columns->setSpacing(32);
    m_columns->addWidget(makeRangeFrame());
    m_columns->addWidget(m_form, 1);
    QScrollArea *scroll = makeScrolling(content, u"recurrenceScroll"_s, this);

    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(24, 16, 24, 18);
    rows->setSpacing(12);
    rows->addWidget(m_title);
    m_body = new QStackedWidget(this);
    m_body->addWidget(scroll);
    m_body->addWidget(makeProgressPanel());
    rows->addWidget(m_body, 1);
    rows->addWidget(makeLine(this));
    rows->addLayout(makeFoot());
    connectRange();
    connect(m_form, &RecurrenceForm::kindChosen, this, &RecurrencePanel::checkLimit);
    connect(m_form, &RecurrenceForm::said, this, &RecurrencePanel::said);
    connect(m_work, &SlicedWork::progressed, this, &RecurrencePanel::showProgress);
    connect(m_work, &SlicedWork::finished, this, &RecurrencePanel::finish);
}

/// Where dates and kinds do not fit beside each other, they stand below each other and scroll.
void RecurrencePanel::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_columns->setDirection(width() < twoColumnsFrom ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}

FieldBox *RecurrencePanel::makeDateBox(const QString &name, const QString &accessibleName, QWidget *parent)
{
    auto *box = named(new FieldBox(parent), name);
    box->setByteLimit(20);
    box->setFixedWidth(dateWidth);
    box->setAccessibleName(accessibleName);
    connect(box, &FieldBox::refused, this, &RecurrencePanel::said);
    return box;
}

QWidget *RecurrencePanel::makeRangeFrame()
{
    auto *frame = new QWidget;
    frame->setFixedWidth(384);
    auto *column = new QVBoxLayout(frame);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(6);
    column->addWidget(makeHeading(u"Beginning and End Date For Recurrence"_s, frame));
    auto *beginning = new QHBoxLayout;
    m_beginning = makeDateBox(u"beginningDate"_s, u"Beginning Date"_s, frame);
    beginning->addWidget(new QLabel(u"  Beginning Date:"_s, frame));
    beginning->addStretch(1);
    beginning->addWidget(m_beginning);
    column->addLayout(beginning);
    addEndLines(column, frame);
    column->addWidget(
        makeNote(u"[Note: Recommend - To Keep Files Manageable -    Ending Dates should be between 5 to "
                 u"10 years.]"_s,
                 frame));
    column->addSpacing(4);
    column->addWidget(new QLabel(u"Use Calendar to change either date:"_s, frame));
    auto *sets = new QHBoxLayout;
    sets->setSpacing(16);
    for (const auto &[id, caption] :
         {std::pair{Beginning, u"Beginning Date"_s}, std::pair{End, u"End Date"_s}}) {
        auto *button = named(new QRadioButton(caption, frame), u"calendarSets_"_s + QString::number(id));
        m_calendarSets->addButton(button, id);
        sets->addWidget(button);
    }
    sets->addStretch(1);
    column->addLayout(sets);
    m_month = named(new MonthView(frame), u"MonthView2"_s);
    m_month->setAccessibleName(u"Calendar for the beginning and the end date"_s);
    m_month->setFixedHeight(240);
    column->addWidget(m_month);
    column->addStretch(1);
    return frame;
}

void RecurrencePanel::addEndLines(QVBoxLayout *column, QWidget *frame)
{
    m_end = makeDateBox(u"endDate"_s, u"End Date"_s, frame);
    m_occurrences = makeDateBox(u"occurrences"_s, u"Number of occurrences"_s, frame);
    m_occurrences->setByteLimit(5);
    m_occurrences->setFixedWidth(numberWidth);
    const auto addLine = [&](EndBy id, const QString &caption, FieldBox *box, const QString &words) {
        auto *button = named(new QRadioButton(caption, frame), u"endBy_"_s + QString::number(id));
        m_endBy->addButton(button, id);
        auto *line = new QHBoxLayout;
        line->addWidget(button);
        line->addStretch(1);
        line->addWidget(box);
        if (!words.isEmpty())
            line->addWidget(new QLabel(words, frame));
        column->addLayout(line);
    };
    addLine(EndDate, u"End Date:"_s, m_end, {});
    addLine(Occurrences, u"End Date after:"_s, m_occurrences, u"occurance(s)"_s);
}

QWidget *RecurrencePanel::makeProgressPanel()
{
    m_progressPanel = named(new QWidget(this), u"progressPanel"_s);
    m_progress = named(new QProgressBar(m_progressPanel), u"updateProgress"_s);
    m_progress->setAccessibleName(u"Progress of the update"_s);
    m_stop = named(new QCheckBox(u"If Needed - Click ONCE to Stop Updating!"_s, m_progressPanel),
                   u"stopUpdating"_s);
    auto *column = new QVBoxLayout;
    column->setSpacing(12);
    column->addStretch(1);
    column->addWidget(
        makeHeading(u"Program is Updating Files:(This may take a minute of two)"_s, m_progressPanel));
    column->addWidget(m_progress);
    column->addWidget(m_stop, 0, Qt::AlignLeft);
    column->addWidget(
        makeNote(u" Please Do Not Try to Cancel Program Operation during this action or Program may Stop "
                 u"Functioning or Files may "_s,
                 m_progressPanel));
    column->addStretch(2);
    m_progress->setMaximumWidth(widestBar);
    auto *middle = new QHBoxLayout(m_progressPanel);
    middle->addStretch(1);
    middle->addLayout(column, 100);
    middle->addStretch(1);
    connect(m_stop, &QCheckBox::toggled, this, [this](bool isTicked) {
        if (isTicked)
            m_work->stop();
    });
    return m_progressPanel;
}

QHBoxLayout *RecurrencePanel::makeFoot()
{
    m_remove = makeButton(u"recurrenceRemove"_s, u"Remove This Recurrence"_s, this);
    m_ok = makeButton(u"recurrenceOk"_s, u"OK"_s, this, ButtonKind::Main);
    m_cancel = makeButton(u"recurrenceCancel"_s, u"Cancel"_s, this);
    m_ok->setMinimumWidth(88);
    auto *foot = new QHBoxLayout;
    foot->setSpacing(8);
    foot->addWidget(m_remove);
    foot->addStretch(1);
    foot->addWidget(m_ok);
    foot->addWidget(m_cancel);
    connect(m_ok, &QPushButton::clicked, this, &RecurrencePanel::insert);
    connect(m_remove, &QPushButton::clicked, this, &RecurrencePanel::remove);
    connect(m_cancel, &QPushButton::clicked, this, &RecurrencePanel::left);
    return foot;
}

void RecurrencePanel::connectRange()
{
    connect(m_month, &QCalendarWidget::selectionChanged, this, &RecurrencePanel::calendarMoved);
    connect(m_calendarSets, &QButtonGroup::idClicked, this, &RecurrencePanel::showCalendarDate);
    for (const FieldBox *box : {m_beginning, m_end})
        connect(box, &QLineEdit::editingFinished, this, &RecurrencePanel::showCalendarDate);
    // Typing into a box means that the recurrence ends by it.
    connect(m_end, &QLineEdit::textEdited, this, [this] { m_endBy->button(EndDate)->setChecked(true); });
    connect(m_occurrences, &QLineEdit::textEdited, this,
            [this] { m_endBy->button(Occurrences)->setChecked(true); });
}
