// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/informationview.h"

#include "cars/model/carentry.h"
#include "cars/model/carnumbers.h"
#include "cars/model/duewords.h"
#include "cars/model/lines.h"
#include "cars/window/opencar.h"
#include "cars/window/sheetform.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/controls.h"
#include "shell/controls/scrollpart.h"
#include "shell/controls/titleline.h"
#include "shell/core/framelines.h"
#include "shell/pictures/pictureframe.h"
#include "shell/program/program.h"

#include <utility>

using namespace Qt::Literals::StringLiterals;

InformationView::InformationView(const CarDesk &desk)
    : CarView(u"information"_s, desk)
    , m_form(new SheetForm(this))
    , m_pictures(desk.program.folder)
{
    addContent(m_form, 1);
    setFocusProxy(m_form->box(SheetForm::nameBox));
    connect(m_form, &SheetForm::boxFocused, this,
            [this](QWidget *box) { scroll().ensureWidgetVisible(box, 8, 32); });
    connect(m_form, &SheetForm::edited, this, [this] { foot().setWords(FrameLines::unsavedChanges()); });
    connect(m_form, &SheetForm::entered, this, &InformationView::take);
    connect(m_form, &SheetForm::said, this, &InformationView::said);
}

void InformationView::finishEdit()
{
    for (std::size_t i = 0; i < SheetForm::count; ++i)
        take(i);
}

/// What was typed into a box is the car's.
void InformationView::take(std::size_t place)
{
    CarRecord wanted = m_form->typed(car().record());
    if (wanted == car().record())
        return;
    const QString remark = amend(wanted);
    if (wanted == car().record()) { // the reading is refused, and the one before stands there again
        m_form->show(wanted);
        foot().setWords(car().isModified() ? FrameLines::unsavedChanges() : QString());
    }
    car().change(m_form->box(place)->accessibleName(), wanted);
    if (!remark.isEmpty())
        emit said(remark);
}

/// The reading becomes a plain number. The sheet's other texts are free, and what looks mistaken is told.
QString InformationView::amend(CarRecord &wanted) const
{
    const VehicleSheet &before = car().record().sheet;
    QString &odometer = wanted.sheet.field(VehicleSheet::Odometer);
    if (odometer != before.field(VehicleSheet::Odometer)) {
        const CarEntry entry = CarEntry::currentReading(odometer, before.field(VehicleSheet::Odometer));
        odometer = entry.text;
        if (entry.isRefused())
            return entry.reason;
    }
    for (const auto field : {VehicleSheet::PurchaseDate, VehicleSheet::InsuranceExpiration}) {
        const QString &typed = wanted.sheet.field(field);
        if (typed != before.field(field) && !typed.trimmed().isEmpty() &&
            !CarNumbers::date(typed, desk().program.state.dateStyle))
            return CarLines::noDate(typed.trimmed());
    }
    return {};
}

void InformationView::refresh()
{
    const CarRecord &record = car().record();
    m_form->show(record);
    m_form->setLocked(!car().whyLocked(CarPart::Sheet).isEmpty());
    m_form->setNew(car().isNew());
    titleLine().setTitle(car().isNew() ? CarLines::newCar() : record.vehicle.name);
    showPicture();
    showFacts();
}

void InformationView::showPicture()
{
    const QString stored = car().record().sheet.field(VehicleSheet::Picture).trimmed();
    if (std::exchange(m_pictureShown, stored) == stored)
        return;
    m_form->picture()->clear();
    if (!stored.isEmpty() && !m_form->picture()->setPicture(m_pictures.locate(stored)))
        emit said(CarLines::pictureNotFound(stored));
}

void InformationView::showFacts()
{
    const DateStyle style = desk().program.state.dateStyle;
    const QDate today = desk().program.clock.today();
    auto registration = CarNeed::State::NoInterval;
    SheetForm::Fact insurance;
    for (const CarNeed &need : car().needs()) {
        if (need.kind == CarNeed::Kind::Registration)
            registration = need.state;
        if (need.kind == CarNeed::Kind::Insurance)
            insurance = {need.state, DueWords::when(need, car().unit(), style, today)};
    }
    m_form->setFacts(registration, insurance);
}
