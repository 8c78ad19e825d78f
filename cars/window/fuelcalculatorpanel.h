// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/fuelfigures.h"
#include "cars/window/cardesk.h"
#include "shell/controls/taskpanel.h"

#include <array>

class ElidedLabel;
class QGridLayout;

/// The fuel calculators: what a car used between two readings, and what a trip will take.
class FuelCalculatorPanel final : public TaskPanel
{
    Q_OBJECT
public:
    explicit FuelCalculatorPanel(const CarDesk &desk);

    /// Begins anew, with what `figures` know in the boxes.
    void begin(const FuelFigures &figures, const QString &lastReading);

signals:
    /// The first calculation is a fill-up, with these cells.
    void fillUpWanted(const FuelRow &fillUp);
    /// A quiet line for the status bar.
    void said(const QString &line);

private:
    enum Box : std::size_t { Previous, Current, Used, Cost, Distance, Economy, Price };
    static constexpr std::size_t boxCount = Price + 1;

    QWidget *makeContent();
    void addBoxes(QGridLayout *grid, Box first, Box last);
    QString text(Box box) const;
    /// The given box where something is missing. False then.
    bool calculate();
    static void showAnswer(QLabel *place, const QString &answer, const QString &hint);
    void showDrive(const QString &answer);
    void showTrip();
    void enterFillUp();

    CarDesk m_desk;
    std::array<QLineEdit *, boxCount> m_boxes{};
    std::array<QLabel *, boxCount> m_captions{};
    ElidedLabel *m_drive = nullptr;
    ElidedLabel *m_trip = nullptr;
};
