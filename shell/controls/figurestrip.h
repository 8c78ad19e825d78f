// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class ElidedLabel;
class QGridLayout;
class QLabel;

/// A few figures side by side, each under what it says, with a sign before it where it has one. Where the
/// captions do not fit they stand in two rows.
class FigureStrip final : public QWidget
{
    Q_OBJECT
public:
    struct Figure {
        QString caption;
        QString value;
        QLatin1StringView sign = {}; ///< before the value: the name of a drawing
    };

    explicit FigureStrip(const QString &name, QWidget *parent = nullptr);

    void setFigures(const QList<Figure> &figures);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    struct Labels {
        QWidget *place;
        ElidedLabel *caption;
        QLabel *sign;
        ElidedLabel *value;
    };

    Labels make();
    qsizetype perRow() const;
    void arrange();
    void setLow(bool isLow);

    QGridLayout *m_grid;
    QList<Labels> m_labels;
    qsizetype m_count = 0;  ///< of the labels that are in use
    qsizetype m_perRow = 0; ///< as they stand
};
