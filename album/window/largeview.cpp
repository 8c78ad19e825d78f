// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/window/largeview.h"

#include "album/model/photoshelf.h"
#include "album/window/wanted.h"
#include "album/window/windowlines.h"
#include "shell/controls/controls.h"
#include "shell/controls/titleline.h"
#include "shell/pictures/picturecanvas.h"
#include "shell/pictures/picturelines.h"
#include "shell/program/program.h"

#include <QLabel>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int sideStep = 256;              ///< a window that grows a little needs no other picture
constexpr qsizetype mostKept = 50'331'648; ///< bytes (48 MiB): this one, and those before and behind it
constexpr int mostWordLines = 4;
} // namespace

LargeView::LargeView(const Program &program, const PhotoShelf &shelf, const QString &thumbnails,
                     QWidget *parent)
    : TitledView(u"large"_s, parent)
    , m_program(program)
    , m_shelf(shelf)
    , m_queue(thumbnails)
    , m_count(titleLine().addWords(u"largePlace"_s))
    , m_canvas(named(new PictureCanvas, u"largePicture"_s))
    , m_words(named(new QLabel(this), u"largeWords"_s))
{
    m_queue.setMostKept(mostKept);
    m_words->setWordWrap(true);
    m_words->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_words->setMaximumHeight(mostWordLines * m_words->fontMetrics().lineSpacing() + 4);
    m_words->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    addContent(m_canvas, 1);
    addContent(m_words);
    m_canvas->setMinimumHeight(120);
    setFocusProxy(m_canvas);
    connect(m_canvas, &PictureCanvas::stepRequested, this, &LargeView::step);
    connect(m_canvas, &PictureCanvas::endRequested, this, &LargeView::goToEnd);
    connect(m_canvas, &PictureCanvas::zoomRequested, this, &LargeView::turnZoom);
    connect(m_canvas, &PictureCanvas::resized, this, &LargeView::want);
    connect(&m_queue, &PictureQueue::arrived, this, [this](int id) {
        if (id == record())
            showPicture();
    });
    connect(&m_queue, &PictureQueue::failed, this, [this](int id) {
        if (id == record())
            showPicture();
    });
}

void LargeView::show(const QList<int> &records, int record)
{
    m_records = records;
    m_canvas->setZoom(PictureCanvas::Zoom::Whole);
    goTo(int(std::max(qsizetype(0), m_records.indexOf(record))));
}

void LargeView::choose(int record)
{
    if (const auto row = m_records.indexOf(record); row >= 0)
        goTo(int(row));
}

/// A picture that has left the list gives way to the one behind it.
void LargeView::followShelf(const QList<int> &records)
{
    const int before = record();
    m_records = records;
    const auto row = m_records.indexOf(before);
    m_row = row >= 0 ? int(row) : std::min(m_row, int(m_records.size()) - 1);
    follow(false);
}

void LargeView::refresh()
{
    want();
    showWords();
}

void LargeView::goTo(int row)
{
    m_row = row;
    want();
    showWords();
    emit stepped(record());
}

void LargeView::step(int by)
{
    const int row = m_row + by;
    if (row < 0 || row >= m_records.size())
        emit said(by < 0 ? AlbumWindowLines::isFirst() : AlbumWindowLines::isLast());
    else
        goTo(row);
}

void LargeView::goToEnd(bool isLast)
{
    if (!m_records.isEmpty())
        goTo(isLast ? int(m_records.size()) - 1 : 0);
}

void LargeView::turnZoom()
{
    const bool isWhole = m_canvas->zoom() == PictureCanvas::Zoom::Whole;
    m_canvas->setZoom(isWhole ? PictureCanvas::Zoom::OneToOne : PictureCanvas::Zoom::Whole);
    want();
    emit zoomChanged();
}

/// This one, and those on either side of it. Out of sight nothing is read.
void LargeView::want()
{
    if (!isVisible() || record() == 0)
        return;
    const bool isWhole = m_canvas->zoom() == PictureCanvas::Zoom::Whole;
    const int side = (m_canvas->side() + sideStep - 1) / sideStep * sideStep;
    m_queue.setSide(isWhole ? side : PictureQueue::wholeSide);
    std::vector<WantedPicture> next;
    for (const int row : {m_row + 1, m_row - 1}) {
        if (isWhole && row >= 0 && row < m_records.size())
            next.push_back(wantedPicture(m_shelf, m_records[row]));
    }
    m_queue.show({wantedPicture(m_shelf, record())}, next);
    showPicture();
}

void LargeView::showPicture()
{
    const PictureQueue::Kept kept = m_queue.kept(record());
    m_canvas->setPicture(kept.image, kept.reason.isEmpty() ? PictureLines::loading() : kept.reason);
    showWords(); // which tell why a picture is shown as it is
}

void LargeView::showWords()
{
    const Photo *photo = m_shelf.photo(record());
    const QString name = photo ? AlbumWindowLines::nameOf(*photo) : QString();
    titleLine().setTitle(name, name); // in smaller letters where it is narrow
    m_count->setText(photo ? AlbumWindowLines::place(m_row, int(m_records.size())) : QString());
    QString words = photo ? AlbumWindowLines::below(*photo, m_program.state.dateStyle) : QString();
    if (photo) {
        const QString sign = AlbumWindowLines::sign(*photo, m_queue.kept(photo->record).look);
        words += (words.isEmpty() || sign.isEmpty() ? QString() : u"\n"_s) + sign;
    }
    m_words->setText(words);
    m_words->setVisible(!words.isEmpty());
    m_canvas->setAccessibleName(photo ? AlbumWindowLines::spoken(*photo, m_program.state.dateStyle)
                                      : QString());
}

/// What was read large is not kept for later.
void LargeView::hideEvent(QHideEvent *event)
{
    TitledView::hideEvent(event);
    m_queue.forgetAll();
    m_canvas->setPicture({});
}
