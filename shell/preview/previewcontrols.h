// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QPushButton>

/// A button of the preview's column: icon and word begin at its left edge, so that the words stand in one
/// line.
class ColumnButton final : public QPushButton
{
    Q_OBJECT
public:
    using QPushButton::QPushButton;

    /// The icon of this name, in the ink that the button's kind takes.
    void setSign(QLatin1StringView icon);

protected:
    void paintEvent(QPaintEvent *event) override;
};

/// The narrow tab that stays at the window's edge while the button column is hidden; its words run downwards.
class EdgeTab final : public QPushButton
{
    Q_OBJECT
public:
    using QPushButton::QPushButton;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;
};

/// A sample of a font on white, as on paper. Its font is the real one; what is too large is drawn smaller to
/// fit.
class FontSample final : public QLabel
{
    Q_OBJECT
public:
    using QLabel::QLabel;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};
