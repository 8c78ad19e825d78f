// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/yearbox.h"

#include "budget/model/budgetfiles.h"

#include <QAbstractItemView>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int yearsAtOnce = 11;
} // namespace

YearBox::YearBox(QWidget *parent)
    : QComboBox(parent)
{
    setObjectName("Combo1"_L1);
    setAccessibleName(u"Year of the budget"_s);
    setMaxVisibleItems(yearsAtOnce);
    for (int year = BudgetFiles::firstYear; year <= BudgetFiles::lastYear; ++year)
        addItem(QString::number(year), year);
    connect(this, &QComboBox::activated, this, [this](int place) {
        // A question about the year that is left has its own event loop.
        const bool isFromList = m_isListOpen;
        emit yearChosen(itemData(place).toInt());
        if (isFromList)
            emit done();
    });
}

void YearBox::setYear(int year)
{
    setCurrentIndex(findData(year));
}

void YearBox::showPopup()
{
    m_isListOpen = true;
    QComboBox::showPopup();
    view()->scrollTo(view()->currentIndex(), QAbstractItemView::PositionAtCenter);
}

/// What is chosen in the list is told right after this.
void YearBox::hidePopup()
{
    QComboBox::hidePopup();
    QMetaObject::invokeMethod(
        this, [this] { m_isListOpen = false; }, Qt::QueuedConnection);
}
