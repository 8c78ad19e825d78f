// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/viewer/viewerchoices.h"

#include "addressbook/model/viewerpages.h"
#include "shell/controls/controls.h"
#include "shell/controls/pastefilter.h"
#include "shell/controls/searchbox.h"
#include "shell/controls/taborder.h"
#include "shell/look/theme.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QLocale>
#include <QRadioButton>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int usualWidth = 272;
constexpr int narrowWidth = 236;
/// Windows narrower than this have the narrow pane.
constexpr int wideFrom = 1200;
constexpr int groupGap = 16;
constexpr int headingGap = 4;
constexpr int monthIndent = 24;

QStringList monthNames()
{
    QStringList names;
    for (int month = 1; month <= 12; ++month)
        names << QLocale::c().monthName(month, QLocale::ShortFormat);
    return names;
}

} // namespace

ViewerChoices::ViewerChoices(QWidget *parent)
    : QWidget(parent)
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    addSearch(*column);
    addInformation(*column);
    addRange(*column);
    column->addStretch(1);
}

void ViewerChoices::addSearch(QVBoxLayout &column)
{
    m_searchBox =
        new SearchBox(u"searchText"_s, u"Search text"_s, u"The grid shows what fits while you type"_s, this);
    QPushButton *search = makeButton(u"searchButton"_s, u"Sea&rch"_s, this);
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    constexpr int signs = 88; // what it has on both sides of its text
    m_searchBox->setMinimumWidth(
        m_searchBox->fontMetrics().horizontalAdvance(m_searchBox->placeholderText()) + signs);
    row->addWidget(m_searchBox, 1);
    row->addWidget(search);
    column.addLayout(row);
    connect(m_searchBox, &QLineEdit::textChanged, this, &ViewerChoices::searchTyped);
    connect(m_searchBox, &QLineEdit::returnPressed, this, &ViewerChoices::searchPressed);
    connect(m_searchBox, &SearchBox::leftDown, this, &ViewerChoices::leftForNames);
    connect(search, &QPushButton::clicked, this, &ViewerChoices::searchPressed);
}

void ViewerChoices::addInformation(QVBoxLayout &column)
{
    column.addSpacing(groupGap);
    column.addWidget(makeHeading(u"Select Information to View"_s, this));
    column.addSpacing(headingGap);
    m_information = new QButtonGroup(this);
    for (int i = 0; i < informationCount; ++i) {
        auto *choice = named(new QRadioButton(ViewerPages::choice(Information(i)), this),
                             u"information_"_s + QString::number(i));
        m_information->addButton(choice, i);
        column.addWidget(choice);
    }
    m_information->button(0)->setChecked(true);
    TabOrder::findTheChosen(*m_information);
    connect(m_information, &QButtonGroup::idToggled, this, [this](int, bool isChosen) {
        if (isChosen)
            emit informationChosen();
    });
}

void ViewerChoices::addRange(QVBoxLayout &column)
{
    column.addSpacing(groupGap);
    column.addWidget(makeHeading(u"Display Range"_s, this));
    column.addSpacing(headingGap);
    m_range = new QButtonGroup(this);
    const auto addChoice = [&](DisplayRange::Kind kind, const QString &caption) {
        auto *choice = named(new QRadioButton(caption, this), u"range_"_s + QString::number(kind));
        m_range->addButton(choice, kind);
        column.addWidget(choice);
    };
    const auto addMonth = [&](DisplayRange::Kind kind, const QString &name, const QString &caption) {
        auto *row = new QHBoxLayout;
        row->setContentsMargins(monthIndent, 2, 0, 2);
        row->setSpacing(8);
        QComboBox *box = makeMonthBox(name, caption, kind);
        row->addWidget(makeFieldLabel(caption, box, this));
        row->addWidget(box, 1);
        column.addLayout(row);
    };
    addChoice(DisplayRange::All, u"Display All"_s);
    addChoice(DisplayRange::BirthMonth, u"Display -If Birth Month Is"_s);
    addMonth(DisplayRange::BirthMonth, u"birthMonth"_s, u"B'day Month:"_s);
    addChoice(DisplayRange::AnniversaryMonth, u"Display-If Anniv.Month Is"_s);
    addMonth(DisplayRange::AnniversaryMonth, u"anniversaryMonth"_s, u"Anniv Month:"_s);
    m_range->button(DisplayRange::All)->setChecked(true);
    TabOrder::findTheChosen(*m_range);
    QPushButton *update = makeButton(u"updateDisplay"_s, u"Update Display"_s, this);
    column.addSpacing(10);
    column.addWidget(update);
    connect(update, &QPushButton::clicked, this, &ViewerChoices::updateRequested);
}

QComboBox *ViewerChoices::makeMonthBox(const QString &name, const QString &caption, DisplayRange::Kind kind)
{
    auto *box = named(new QComboBox(this), name);
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->addItems(monthNames());
    box->setCurrentIndex(-1);
    box->setMaxVisibleItems(12);
    box->setAccessibleName(caption);
    box->setToolTip(u"A month as Apr, April or 4"_s);
    box->lineEdit()->setPlaceholderText(u"Month"_s);
    new PasteFilter(box->lineEdit(), Characters::All);
    // Who names a month wants to see it.
    connect(box, &QComboBox::editTextChanged, this, [this, kind](const QString &text) {
        m_range->button(text.isEmpty() ? m_range->checkedId() : kind)->setChecked(true);
    });
    connect(box->lineEdit(), &QLineEdit::returnPressed, this, &ViewerChoices::updateRequested);
    m_months[kind] = box;
    return box;
}

QString ViewerChoices::searchText() const
{
    return m_searchBox->text();
}

void ViewerChoices::clearSearch()
{
    m_searchBox->clear();
}

void ViewerChoices::focusSearch()
{
    m_searchBox->startAgain();
}

Information ViewerChoices::information() const
{
    return Information(m_information->checkedId());
}

DisplayRange::Kind ViewerChoices::rangeKind() const
{
    return DisplayRange::Kind(m_range->checkedId());
}

int ViewerChoices::month(DisplayRange::Kind kind) const
{
    return m_months[kind] ? DayOfYear::monthTyped(m_months[kind]->currentText()) : 0;
}

void ViewerChoices::focusMonth(DisplayRange::Kind kind)
{
    if (!m_months[kind])
        return;
    m_months[kind]->setFocus();
    m_months[kind]->lineEdit()->selectAll();
}

int ViewerChoices::leastWidth() const
{
    return minimumSizeHint().width() + style()->pixelMetric(QStyle::PM_ScrollBarExtent);
}

int ViewerChoices::suitableWidth(QSize window) const
{
    return std::max(leastWidth(), window.width() < wideFrom ? narrowWidth : usualWidth);
}
