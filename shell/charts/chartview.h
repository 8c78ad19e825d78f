// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/charts/chartstyle.h"

#include <QWidget>

class ElidedLabel;
class QLabel;

/// What every chart on a panel has, in the panel's colours: a title, a caption, the words of what mouse or
/// keys point at, and a rim while it has the focus. The parts are named after it: "itemsChart" has
/// itemsChartTitle.
class ChartView : public QWidget
{
    Q_OBJECT
public:
    explicit ChartView(const QString &name, QWidget *parent = nullptr);

protected:
    static constexpr int frame = 8; ///< around all of it, with the rim of the focus

    void setHead(const QString &title, const QString &caption, const QString &description);
    void setReading(const QString &words);
    /// A few words at the right of the caption.
    void setBesideCaption(QWidget *beside);
    int headHeight() const;
    void placeHead(int width);

    /// The plot takes this style.
    virtual void setStyle(const ChartStyle &style) = 0;
    virtual void arrange() = 0;
    /// What is named while the focus comes in or nothing is pointed at any more.
    virtual void nameFirst() = 0;
    virtual void nameNothing() = 0;
    void restyle();

    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void placeReading();

    ElidedLabel *m_title;
    ElidedLabel *m_caption;
    QWidget *m_beside = nullptr;
    ElidedLabel *m_reading; ///< of what is named
    int m_headWidth = 0;
    QColor m_ground; ///< that it was drawn for
};
