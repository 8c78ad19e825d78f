// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/pages/pagefont.h"

#include <QDialog>

class Dialogs;
class QFontDialog;
class QPushButton;

/// The font chooser of the page preview: the platform's choice of fonts with the colour of the text beside
/// it.
class FontBox final : public QDialog
{
    Q_OBJECT
public:
    FontBox(Dialogs &dialogs, const PageFont &preset, QWidget *parent);

    PageFont chosen() const;

private:
    void showColor();

    QFontDialog *m_fonts;
    QPushButton *m_colorButton;
    QColor m_color;
};
