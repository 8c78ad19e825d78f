// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/window/photosview.h"

#include "shell/controls/buttonrow.h"
#include "shell/controls/controls.h"
#include "shell/controls/datebox.h"
#include "shell/controls/datepicker.h"
#include "shell/controls/scrollpart.h"
#include "shell/controls/titleline.h"
#include "shell/core/framelines.h"
#include "shell/frame/functionwindow.h"
#include "shell/pictures/pictureframe.h"
#include "shell/program/program.h"
#include "weight/model/weightdates.h"
#include "weight/window/datecheck.h"
#include "weight/window/openperson.h"
#include "weight/window/windowlines.h"

#include <QVBoxLayout>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int betweenPhotos = 24;

WeightSheet::Field dateField(PhotosView::Photo photo)
{
    return photo == PhotosView::Beginning ? WeightSheet::BeginningPhotoDate : WeightSheet::CurrentPhotoDate;
}

QString nameOf(PhotosView::Photo photo)
{
    return photo == PhotosView::Beginning ? u"Beginning Photo"_s : u"Current Photo"_s;
}

} // namespace

PhotosView::PhotosView(const WeightDesk &desk)
    : PersonView(u"photos"_s, desk)
    , m_pictures(desk.program.folder)
{
    auto *picker = new DatePicker(desk.program.clock, desk.program.settings, &desk.window, u"MonthView3"_s);
    auto *places = new QWidget(this);
    auto *row = new QHBoxLayout(places);
    row->setContentsMargins({});
    row->setSpacing(betweenPhotos);
    for (const Photo photo : {Beginning, Current})
        row->addWidget(makePlace(photo, picker), 1);
    addContent(places, 1);
    setFocusProxy(m_dates[Beginning]);
}

QWidget *PhotosView::makePlace(Photo photo, DatePicker *picker)
{
    auto *place = new QWidget(this);
    auto *rows = new QVBoxLayout(place);
    rows->setContentsMargins({});
    rows->setSpacing(10);
    rows->addWidget(makeHeading(nameOf(photo), place));
    PictureFrame *frame = named(new PictureFrame(place), u"Image"_s + QString::number(photo + 1));
    frame->setWords(u"No Picture Currently Loaded"_s);
    frame->setAccessibleName(nameOf(photo));
    auto *date = new DateBox(desk().dateCheck.reading(), picker, place);
    named(date, u"Text1_"_s + QString::number(dateField(photo)));
    date->setForm(WeightDates::longText);
    date->setMinimumWidth(boxWidth(u"September 30, 2026"_s, 160));
    date->setAccessibleName(nameOf(photo) + u", date"_s);
    auto *row = new QHBoxLayout;
    row->setSpacing(12);
    row->addLayout(labelled(u"Date the photo was taken:"_s, date), 1);
    rows->addLayout(row);
    rows->addWidget(frame, 1);
    connect(date, &QLineEdit::textEdited, this, [this] { foot().setWords(FrameLines::unsavedChanges()); });
    connect(date, &FieldBox::refused, this, &PhotosView::said);
    connect(date, &QLineEdit::editingFinished, this, [this, photo] { take(photo); });
    connect(picker, &DatePicker::picked, this, [this, photo, date](const DateBox *box) {
        if (box == date)
            take(photo);
    });
    m_frames[photo] = frame;
    m_dates[photo] = date;
    m_rows[photo] = row;
    return place;
}

void PhotosView::setButton(Photo photo, QPushButton *button)
{
    button->setParent(m_frames[photo]->parentWidget());
    m_buttons[photo] = button;
    m_rows[photo]->addWidget(button, 0, Qt::AlignBottom);
    setTabOrder(m_dates[photo], button);
}

/// Below the date where both have no room side by side.
void PhotosView::placeButtons()
{
    for (const Photo photo : {Beginning, Current}) {
        if (!m_buttons[photo])
            continue;
        const int needed =
            m_dates[photo]->minimumWidth() + m_rows[photo]->spacing() + m_buttons[photo]->sizeHint().width();
        const bool isNarrow = 2 * needed + betweenPhotos > scroll().width();
        m_rows[photo]->setDirection(isNarrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    }
}

void PhotosView::resizeEvent(QResizeEvent *event)
{
    PersonView::resizeEvent(event);
    placeButtons();
}

void PhotosView::finishEdit()
{
    for (const Photo photo : {Beginning, Current}) {
        m_dates[photo]->tidy();
        take(photo);
    }
}

const QString &PhotosView::path(const WeightSheet &sheet, Photo photo)
{
    return photo == Beginning ? sheet.beginningPicture : sheet.currentPicture;
}

void PhotosView::setPath(Photo photo, const QString &path)
{
    WeightSheet wanted = person().sheet();
    (photo == Beginning ? wanted.beginningPicture : wanted.currentPicture) = path;
    person().change(nameOf(photo), wanted);
}

/// The date that was typed is the sheet's, unless the entry check refuses it.
void PhotosView::take(Photo photo)
{
    const WeightSheet::Field field = dateField(photo);
    const QString before = person().sheet().field(field);
    const QString typed = m_dates[photo]->text();
    if (typed == before)
        return;
    const WeightEntry entry = desk().dateCheck.sheetDate(typed, before);
    m_dates[photo]->setText(entry.text);
    if (entry.refusal) {
        emit noticed(*entry.refusal);
        return;
    }
    WeightSheet wanted = person().sheet();
    wanted.field(field) = entry.text;
    person().change(nameOf(photo), wanted);
}

void PhotosView::refresh()
{
    titleLine().setTitle(person().isNew() ? TrackerLines::newPerson() : person().name());
    for (const Photo photo : {Beginning, Current}) {
        const QString &date = person().sheet().field(dateField(photo));
        if (m_dates[photo]->text() != date)
            m_dates[photo]->setText(date);
        m_dates[photo]->setLocked(!person().whyLocked().isEmpty());
        const QString stored = path(person().sheet(), photo).trimmed();
        if (std::exchange(m_shown[photo], stored) == stored)
            continue;
        m_frames[photo]->clear();
        if (!stored.isEmpty() && !m_frames[photo]->setPicture(m_pictures.locate(stored)))
            emit said(TrackerLines::pictureNotFound(stored));
    }
}
