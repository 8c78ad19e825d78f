// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/twolinedelegate.h"

/// A row of the list of cars: a small picture, the name, and below it what the car needs, with its sign.
class CarRowDelegate final : public TwoLineDelegate
{
    Q_OBJECT
public:
    using TwoLineDelegate::TwoLineDelegate;

    /// Of the small picture, in logical pixels.
    static QSize pictureSize();

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

protected:
    QRect linesPlace(const QRect &row, const QModelIndex &index) const override;
    void paintBeside(QPainter *painter, const QStyleOptionViewItem &row, const QModelIndex &index,
                     const QRect &title) const override;

private:
    static bool hasPictures(const QRect &row, const QModelIndex &index);
};
