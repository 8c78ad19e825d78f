// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pictures/enlargedpicture.h"

#include "shell/controls/titleline.h"
#include "shell/look/theme.h"
#include "shell/pictures/pictureframe.h"
#include "shell/pictures/picturelines.h"
#include "shell/pictures/pictureloader.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// What the picture is read for: enough to fill a fine screen.
constexpr QSize enlargedPixels(1600, 1600);
/// Even a small picture is shown large.
constexpr double greatestStretch = 12;

} // namespace

EnlargedPicture::EnlargedPicture(const DataFolder &folder, const QString &button, const QString &caption,
                                 QWidget *parent)
    : TaskPanel(u"enlargedPanel"_s, {}, parent)
    , m_loader(new PictureLoader(folder, this))
    , m_frame(named(new PictureFrame(this), u"enlargedPicture"_s))
{
    named(titleLine().label(), u"enlargedName"_s);
    m_frame->setAlignment(Qt::AlignCenter);
    m_frame->setGreatestStretch(greatestStretch);
    m_frame->setAccessibleName(u"Picture, enlarged"_s);
    setWork(m_frame);
    QPushButton *leave = setLeaveButton(button, caption, ButtonKind::Main);
    leave->setIcon(Icons::tinted("zoom-out"_L1, Theme::of(this).scheme, Theme::of(this).onAccent));
    setFocusProxy(leave);
}

void EnlargedPicture::enlarge(const QString &stored, const QString &name)
{
    setTitle(name);
    titleLine().setVisible(!name.isEmpty());
    m_frame->clear();
    m_frame->setWords(PictureLines::loading());
    m_loader->forget();
    m_loader->load(stored, enlargedPixels, [this](const LoadedPicture &picture) {
        m_frame->setWords(PictureLines::pictureNotFound());
        m_frame->setImage(picture.image);
    });
}
