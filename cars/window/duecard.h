// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/carneeds.h"
#include "cars/model/vehiclesheet.h"

#include <QWidget>

class ElidedLabel;
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
    const CarNeed &need() const { return m_need; }
    QPushButton *button() const { return m_button; }

signals:
    void clicked();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    CarNeed m_need;
    ElidedLabel *m_name;
    SignLine *m_when;
    ElidedLabel *m_howFar;
    QPushButton *m_button;
};
