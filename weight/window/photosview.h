// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/pictures/picturefolder.h"
#include "weight/window/personview.h"

#include <array>

class DateBox;
class DatePicker;
class PictureFrame;
class QHBoxLayout;
class QPushButton;
struct WeightSheet;

/// Beginning and current photo of the open person side by side, each with the date on which it was taken.
class PhotosView final : public PersonView
{
    Q_OBJECT
public:
    enum Photo : std::size_t { Beginning, Current };
    static constexpr std::size_t count = Current + 1;

    explicit PhotosView(const WeightDesk &desk);

    void finishEdit() override;
    /// Puts the button that chooses a photo beside its date.
    void setButton(Photo photo, QPushButton *button);

    PictureFrame *frame(Photo photo) const { return m_frames[photo]; }
    /// The path of a photo as the sheet has it.
    static const QString &path(const WeightSheet &sheet, Photo photo);
    /// Makes `path` the photo's; empty takes it away.
    void setPath(Photo photo, const QString &path);

protected:
    void refresh() override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QWidget *makePlace(Photo photo, DatePicker *picker);
    void placeButtons();
    void take(Photo photo);

    PictureFolder m_pictures;
    std::array<PictureFrame *, count> m_frames{};
    std::array<DateBox *, count> m_dates{};
    std::array<QHBoxLayout *, count> m_rows{};
    std::array<QPushButton *, count> m_buttons{};
    std::array<QString, count> m_shown; ///< paths as the sheet has them
};
