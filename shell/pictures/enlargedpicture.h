// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/taskpanel.h"

class DataFolder;
class PictureFrame;
class PictureLoader;

/// One picture over the whole work, with a name above it where one is given, until the user has seen enough.
class EnlargedPicture final : public TaskPanel
{
    Q_OBJECT
public:
    /// `button` and `caption` are the name and the words of the button that leads back.
    EnlargedPicture(const DataFolder &folder, const QString &button, const QString &caption,
                    QWidget *parent = nullptr);

    /// Shows the picture that the stored path means as soon as it has been read.
    void enlarge(const QString &stored, const QString &name = {});

private:
    PictureLoader *m_loader;
    PictureFrame *m_frame;
};
