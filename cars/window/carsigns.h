// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class CarList;
class OpenCar;
struct Program;

/// Tells the list of cars what each of them needs and what it looks like. All but the open car are read when
/// the list is on the screen: the window opens without waiting for them.
class CarSigns final : public QObject
{
    Q_OBJECT
public:
    CarSigns(const Program &program, OpenCar &car, CarList &list, QObject *parent);

    /// The list has other cars, or their files have changed.
    void readAll();

private:
    void readOthers();
    void followOpenCar();

    const Program &m_program;
    OpenCar &m_car;
    CarList &m_list;
    bool m_isReading = false;
};
