// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/frame/functionwindow.h"
#include "weight/window/weightdesk.h"

class DateCheck;
class EmptyPage;
class OpenPerson;
class PersonChanges;
class PersonPane;
class PersonPictures;
class PersonPrint;
class PersonViews;
class WeighInFiles;
class WorkViews;
struct Place;

/// The weight tracker: the persons at the left, and of the open one the weigh-ins, the plan and the photos.
class WeightTracker final : public FunctionWindow
{
    Q_OBJECT
public:
    explicit WeightTracker(Program &program, QWidget *parent = nullptr);

    bool isModified() const override;

    /// Opens the person whose place in the list is the record of `place`, where unsaved work lets it.
    void showPlace(const Place &place);

protected:
    [[nodiscard]] bool save() override;
    void drop() override;
    Message leaveQuestion() const override;
    void filesChanged() override;

private:
    WeightDesk desk();
    QWidget *makeWorkPanel();
    void makeCommands();
    void makeRowCommands(QMenu *edit);
    void makeFoot();
    void makeListButtons();
    void connectParts();

    void openList(const QString &name);
    void openPerson(const QString &name);
    void refreshHome();
    void viewExisting();
    void offerUnlisted();
    QString whyNoRow() const;

    OpenPerson *m_person;
    DateCheck *m_dateCheck;
    PersonPane *m_list;
    WorkViews *m_stack; ///< the views, and what stands over them
    PersonViews *m_views;
    PersonChanges *m_changes;
    PersonPictures *m_pictures;
    PersonPrint *m_print;
    WeighInFiles *m_files;
    EmptyPage *m_emptyPage;

    /// Commands that have buttons, too.
    struct {
        QAction *create, *save, *saveNew, *remove, *addRow, *deleteRow, *dates;
    } m_commands{};
};
