// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/taskpanel.h"
#include "weight/model/weightsheet.h"

#include <array>

class PictureFrame;
class PictureLoader;
class QLabel;
struct Program;

/// Both photos of a person over the whole work, side by side, with their days and what lies between them.
class ThenAndNow final : public TaskPanel
{
    Q_OBJECT
public:
    explicit ThenAndNow(const Program &program, QWidget *parent = nullptr);

    /// Shows the photos of `sheet` as soon as they have been read.
    void compare(const WeightSheet &sheet);

private:
    struct Place {
        QLabel *name;
        PictureFrame *frame;
    };

    QWidget *makePlace(std::size_t index);
    void load(const Place &place, const QString &stored);

    const Program &m_program;
    PictureLoader *m_loader;
    std::array<Place, 2> m_places{};
};
