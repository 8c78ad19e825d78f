// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/window/cardesk.h"
#include "shell/frame/functionwindow.h"

class CarChanges;
class CarList;
class CarPrint;
class CarSigns;
class CarViews;
class CreateRoutine;
class DonePanel;
class EmptyPage;
class HistoryCommands;
class OpenCar;
class PicturePanel;
class WorkViews;
struct CarNeed;
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
    CarDesk desk();
    QWidget *makeWorkPanel();
    void makeCommands();
    void makeFoot(QAction *remove);
    void makeListButtons(QAction *create, QAction *remove);
    void connectCar();
    void connectViews();

    QString whyNoCar() const;
    void openList(int slot);
    void openCar(int slot);
    void refreshHome();
    void saveByCommand();
    void enterDone(const CarNeed &need);
    void typeInto(std::size_t box);
    void choosePicture();
    void setPicture(const QString &path);

    OpenCar *m_car;
    CarList *m_list;
    CarSigns *m_signs;
    WorkViews *m_stack; ///< the views, and what stands over them
    CarViews *m_views;
    HistoryCommands *m_histories;
    CarPrint *m_print;
    CarChanges *m_changes;
    CreateRoutine *m_create;
    DonePanel *m_done;
    PicturePanel *m_pictures;
    EmptyPage *m_emptyPage;
    QPushButton *m_listCreate = nullptr;
    QAction *m_save = nullptr;
    QList<QPushButton *> m_buttons; ///< of every view, while no car is being made
};
