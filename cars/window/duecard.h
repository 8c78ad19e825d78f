// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/carneeds.h"
#include "cars/model/vehiclesheet.h"

#include <QWidget>

class ElidedLabel;
class QBoxLayout;
class QLabel;
class QPushButton;
class SignLine;

/// Something that the open car needs: what, when, how far, and the button with which it is done.
class DueCard final : public QWidget
{
    Q_OBJECT
public:
    /// How its words are put.
    struct Words {
        DistanceUnit unit;
        DateStyle style;
        QDate today;
    };

    /// `number` is in the name of its button: "done_0".
    explicit DueCard(int number, QWidget *parent = nullptr);

    static int leastWidth();
    /// Where only one would have room otherwise: long words are cut then.
    static int narrowWidth();

    void show(const CarNeed &need, const Words &words);
    /// In one line, without how far it is.
    void setFlat(bool isFlat);
    /// What the words about the time need; they stand one below the other in lines of the same width.
    int whenWidth() const;
    void setWhenWidth(int width);
    const CarNeed &need() const { return m_need; }
    QPushButton *button() const { return m_button; }

signals:
    void clicked();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    CarNeed m_need;
    QBoxLayout *m_rows;
    ElidedLabel *m_name;
    SignLine *m_when;
    ElidedLabel *m_howFar;
    QPushButton *m_button;
};
