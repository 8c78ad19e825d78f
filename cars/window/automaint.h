// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/frame/functionwindow.h"

class CarList;
class CarPrint;
class CarSigns;
class CarViews;
class HistoryCommands;
class EmptyPage;
class OpenCar;
class WorkViews;
struct Place;

/// The automobile tracker: the household's cars at the left, and of the open one what it needs, its sheet,
/// its histories and its fuel.
class AutoMaint final : public FunctionWindow
{
    Q_OBJECT
public:
    explicit AutoMaint(Program &program, QWidget *parent = nullptr);

    bool isModified() const override;

    /// Opens the car whose slot is the record of `place`, where unsaved work lets it.
    void showPlace(const Place &place);

protected:
    [[nodiscard]] bool save() override;
    void drop() override;
    Message leaveQuestion() const override;
    void filesChanged() override;

private:
    QWidget *makeWorkPanel();
    void makeCommands();
    void makeFoot();
    void connectCar();

    QString whyNoCar() const;
    void openList(int slot);
    void openCar(int slot);
    void saveByCommand();

    OpenCar *m_car;
    CarList *m_list;
    CarSigns *m_signs;
    WorkViews *m_stack; ///< the views, and what stands over them
    CarViews *m_views;
    HistoryCommands *m_histories;
    CarPrint *m_print;
    EmptyPage *m_emptyPage;
    QAction *m_save = nullptr;
};
