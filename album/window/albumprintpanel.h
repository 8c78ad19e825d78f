// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/albumpages.h"
#include "shell/controls/taskpanel.h"

class ChoiceGrid;
class QCheckBox;
class QComboBox;
class QLabel;

/// How pictures come onto paper: several to a sheet, in the sizes of photographs, on a contact sheet, as a
/// book.
class AlbumPrintPanel final : public TaskPanel
{
    Q_OBJECT
public:
    explicit AlbumPrintPanel(QWidget *parent = nullptr);

    /// `name` is what is printed, of so many pictures.
    void start(const QString &name, int count);
    AlbumPages::Options options() const;

signals:
    void accepted();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QComboBox *makeChoice(const QString &name, const QString &spoken);
    void makeForms();
    void follow();

    QLabel *m_what;
    ChoiceGrid *m_forms;
    QComboBox *m_perSheet;
    QComboBox *m_size;
    QComboBox *m_perBookSheet;
    QCheckBox *m_filled;
    QCheckBox *m_captions;
    QCheckBox *m_dates;
};
