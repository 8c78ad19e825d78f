// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/access/passwordcheck.h"
#include "shell/frame/functionwindow.h"

#include <array>
#include <chrono>

class IdleChoice;
class PasswordPane;
class QCheckBox;
class QLabel;
class QLayout;
class QPushButton;

/// Password control: sets the password and marks what it guards. The password is in force as soon as it is
/// set, the marks when they are saved.
class Form31 final : public FunctionWindow
{
    Q_OBJECT
public:
    /// `cost` goes into a password that is set here, `step` is what each further wrong answer waits longer.
    explicit Form31(Program &program, PasswordCost cost = PasswordCost::interactive(),
                    std::chrono::milliseconds step = std::chrono::seconds(1), QWidget *parent = nullptr);

    bool isModified() const override;

protected:
    [[nodiscard]] bool save() override;
    void drop() override { loadMarks(); }
    void filesChanged() override;
    Message leaveQuestion() const override;

private:
    void makeMenus();
    QWidget *makePasswordPanel();
    QWidget *makeAreasPanel();
    QWidget *makeMarks();
    QWidget *makeFoot();
    QLayout *makeOwnMarks(QWidget *parent);
    QWidget *makeOtherMarks(QWidget *parent);
    QCheckBox *makeMark(int area, QWidget *parent);
    void connectPane();
    void sayWithWrongAnswers(const QString &done);

    void refresh();
    void loadMarks();
    void marksChanged();
    void offerOtherWay(int area);
    void tellDamage();
    void print();
    void printCode(const QString &code);

    /// The flags as the check boxes show them; those that stay as they are keep their text.
    ProtectedAreas shownAreas() const;

    PasswordCheck m_file;
    ProtectedAreas m_saved; ///< the flags when they were last read or written
    PasswordPane *m_pane = nullptr;
    IdleChoice *m_idle = nullptr;
    std::array<QCheckBox *, ProtectedAreas::count> m_marks{};
    std::array<QLabel *, ProtectedAreas::count> m_levels{}; ///< what each mark does; of this edition only
    QCheckBox *m_showOthers = nullptr;
    QLabel *m_unsaved = nullptr;
    QAction *m_saveAction = nullptr;
    QPushButton *m_saveButton = nullptr;
};
