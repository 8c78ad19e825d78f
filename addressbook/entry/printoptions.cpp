#include "addressbook/entry/printoptions.h"

#include "addressbook/model/entrylines.h"
#include "shell/controls/controls.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QRadioButton>
#include <QScrollArea>
#include <QSpinBox>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {
/// How many entries the choice "from the selected name on" proposes.
constexpr int recommended = 16;
} // namespace

PrintOptions::PrintOptions(QWidget *parent)
    : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 20, 24, 20);
    layout->setSpacing(12);
    layout->addWidget(makeTitle(u"Print Options"_s, this));
    layout->addSpacing(4);
    auto *content = new QWidget;
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(12);
    column->addWidget(makeHeading(u"Several entries on each page, with their pictures"_s, content));
    column->addWidget(makeRange());
    column->addWidget(makeChoices());
    column->addStretch(1);
    layout->addWidget(makeScrolling(content, u"printOptionsScroll"_s, this), 1);
    layout->addWidget(makeLine(this));
    auto *foot = new QHBoxLayout;
    QPushButton *leave = makeButton(u"printOptionsExit"_s, u"Close"_s, this);
    connect(leave, &QPushButton::clicked, this, &PrintOptions::left);
    foot->addStretch(1);
    foot->addWidget(leave);
    layout->addLayout(foot);
}

QWidget *PrintOptions::makeRange()
{
    auto *range = new QWidget(this);
    auto *layout = new QGridLayout(range);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setVerticalSpacing(8);
    layout->setHorizontalSpacing(8);
    m_all = named(new QRadioButton(range), u"printAll"_s);
    m_some = named(new QRadioButton(u"From the selected name on, entries:"_s, range), u"printSome"_s);
    m_count = named(new QSpinBox(range), u"printCount"_s);
    m_count->setAccessibleName(u"Number of entries to print"_s);
    m_count->setMinimumSize(96, 34);
    layout->addWidget(m_all, 0, 0, 1, 3);
    layout->addWidget(m_some, 1, 0);
    layout->addWidget(m_count, 1, 1);
    layout->setColumnStretch(2, 1);
    connect(m_some, &QRadioButton::toggled, this, &PrintOptions::offerCount);
    return range;
}

QWidget *PrintOptions::makeChoices()
{
    using AddressPages::PerSheet;
    auto *choices = new QWidget(this);
    auto *layout = new QGridLayout(choices);
    layout->setContentsMargins(0, 4, 0, 0);
    layout->setHorizontalSpacing(16);
    layout->setVerticalSpacing(8);
    layout->setColumnStretch(1, 1);
    const auto addChoice = [&](QPushButton *button, const QString &words) {
        button->setMinimumWidth(160);
        const int row = layout->rowCount();
        layout->addWidget(button, row, 0);
        layout->addWidget(makeQuietLabel(words, choices), row, 1);
    };
    const std::array<std::pair<PerSheet, QString>, 3> sizes{
        {{PerSheet::Two, u"Large pictures, two entries a page"_s},
         {PerSheet::Four, u"Four entries a page"_s},
         {PerSheet::Eight, u"Small pictures, eight entries a page"_s}}};
    for (const auto &[perSheet, words] : sizes) {
        const QString number = QString::number(int(perSheet));
        QPushButton *button = makeButton(u"print"_s + number, u"Print "_s + number, choices);
        connect(button, &QPushButton::clicked, this, [this, size = perSheet] { emit cardsRequested(size); });
        addChoice(button, words);
        m_cards.append(button);
    }
    layout->setRowMinimumHeight(layout->rowCount(), 8);
    layout->addWidget(makeHeading(u"One page"_s, choices), layout->rowCount(), 0, 1, 2);
    m_entry = makeButton(u"printEntry"_s, u"&Print File"_s, choices);
    addChoice(m_entry, u"The entry that is shown"_s);
    QPushButton *worksheet = makeButton(u"printWorksheet"_s, u"Print &Worksheet"_s, choices);
    addChoice(worksheet, u"An empty form to fill in by hand"_s);
    connect(m_entry, &QPushButton::clicked, this, &PrintOptions::entryRequested);
    connect(worksheet, &QPushButton::clicked, this, &PrintOptions::worksheetRequested);
    return choices;
}

void PrintOptions::start(int selected, int total)
{
    m_selected = selected;
    m_total = total;
    m_all->setText(u"All entries: %1"_s.arg(total));
    const int following = selected < 0 ? 0 : total - selected;
    m_count->setRange(1, std::max(1, following));
    m_count->setValue(std::min(recommended, following));
    setUnavailable(m_some, following > 0 ? QString() : AddressLines::chooseNameFirst());
    (following > 0 && total > recommended ? m_some : m_all)->setChecked(true);
    offerCount();
    for (QPushButton *button : std::as_const(m_cards))
        setUnavailable(button, total > 0 ? QString() : AddressLines::bookIsEmpty());
    setUnavailable(m_entry, selected >= 0 ? QString() : AddressLines::chooseNameFirst());
}

void PrintOptions::offerCount()
{
    setUnavailable(m_count, m_some->isChecked() ? QString() : AddressLines::allArePrinted());
}

void PrintOptions::focusFirst()
{
    m_cards.first()->setFocus();
}

PrintOptions::Range PrintOptions::range() const
{
    if (m_some->isChecked())
        return {m_selected, m_count->value()};
    return {0, m_total};
}

void PrintOptions::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        emit left();
    else
        QWidget::keyPressEvent(event);
}
