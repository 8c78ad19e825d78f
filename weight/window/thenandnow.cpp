// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/window/thenandnow.h"

#include "shell/look/theme.h"
#include "shell/pictures/pictureframe.h"
#include "shell/pictures/picturelines.h"
#include "shell/pictures/pictureloader.h"
#include "shell/program/program.h"
#include "weight/model/photodays.h"

#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

/// What a photo is read for: enough to fill half of a fine screen.
constexpr QSize photoPixels(1400, 1400);
constexpr double greatestStretch = 12;

constexpr std::array names{"Then"_L1, "Now"_L1};

} // namespace

ThenAndNow::ThenAndNow(const Program &program, QWidget *parent)
    : TaskPanel(u"thenAndNowPanel"_s, {}, parent)
    , m_program(program)
    , m_loader(new PictureLoader(program.folder, this))
{
    auto *work = new QWidget(this);
    auto *row = new QHBoxLayout(work);
    row->setContentsMargins({});
    row->setSpacing(24);
    for (std::size_t index = 0; index < names.size(); ++index)
        row->addWidget(makePlace(index), 1);
    setWork(work);
    QPushButton *leave = setLeaveButton(u"thenAndNowClose"_s, u"C&lose"_s, ButtonKind::Main);
    leave->setIcon(Icons::tinted("zoom-out"_L1, Theme::of(this).scheme, Theme::of(this).onAccent));
    setFocusProxy(leave);
}

QWidget *ThenAndNow::makePlace(std::size_t index)
{
    auto *place = new QWidget(this);
    auto *rows = new QVBoxLayout(place);
    rows->setContentsMargins({});
    rows->setSpacing(8);
    const Place made{makeHeading({}, place), named(new PictureFrame(place), names[index] + u"Photo"_s)};
    named(made.name, names[index] + u"Name"_s);
    made.frame->setGreatestStretch(greatestStretch);
    rows->addWidget(made.name);
    rows->addWidget(made.frame, 1);
    m_places[index] = made;
    return place;
}

void ThenAndNow::compare(const WeightSheet &sheet)
{
    const PhotoDays days = PhotoDays::of(sheet);
    const QString between = days.between();
    setTitle(between.isEmpty() ? u"Then and Now"_s : u"Then and now: "_s + between);
    m_loader->forget();
    const std::array all{&days.then, &days.now};
    const std::array stored{sheet.beginningPicture, sheet.currentPicture};
    for (std::size_t index = 0; index < all.size(); ++index) {
        const QString day = PhotoDays::text(*all[index], m_program.state.dateStyle);
        const QString name = day.isEmpty() ? QString(names[index]) : names[index] + u", "_s + day;
        m_places[index].name->setText(name);
        m_places[index].frame->setAccessibleName(name);
        load(m_places[index], stored[index].trimmed());
    }
}

void ThenAndNow::load(const Place &place, const QString &stored)
{
    place.frame->clear();
    place.frame->setWords(stored.isEmpty() ? u"No Picture Currently Loaded"_s : PictureLines::loading());
    if (stored.isEmpty())
        return;
    m_loader->load(stored, photoPixels, [frame = place.frame](const LoadedPicture &picture) {
        frame->setWords(PictureLines::pictureNotFound());
        frame->setImage(picture.image);
    });
}
