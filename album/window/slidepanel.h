// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/window/slideshow.h"
#include "shell/controls/taskpanel.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QSpinBox;
struct Program;

/// "Slide Show": how long each picture stays, on which screen, in which order. What was chosen the last time
/// is chosen again.
class SlidePanel final : public TaskPanel
{
    Q_OBJECT
public:
    SlidePanel(const Program &program, const PhotoShelf &shelf, QWidget *parent = nullptr);

    /// `name` is what is shown: "Grandmother", "What is chosen".
    void start(const QString &name, const QList<int> &photos);
    SlideOptions options() const;
    const QList<int> &photos() const { return m_photos; }

signals:
    void accepted();

private:
    void fill(QWidget *content);
    void fillScreens();
    void remember() const;

    const Program &m_program;
    const PhotoShelf &m_shelf;
    QList<int> m_photos;
    QLabel *m_what;
    QSpinBox *m_seconds;
    QComboBox *m_screen;
    QCheckBox *m_soft;
    QCheckBox *m_shuffled;
    QCheckBox *m_captions;
    QPushButton *m_begin;
};
