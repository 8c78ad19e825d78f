// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/program/fontbox.h"

#include "shell/controls/controls.h"
#include "shell/look/theme.h"
#include "shell/program/dialogs.h"

#include <QFontDialog>
#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

FontBox::FontBox(Dialogs &dialogs, const PageFont &preset, QWidget *parent)
    : QDialog(parent)
    , m_fonts(named(new QFontDialog(preset.font, this), u"fontChooser"_s))
    , m_colorButton(makeButton(u"fontColor"_s, u"&Color"_s, this))
    , m_color(preset.color)
{
    setObjectName("fontBox"_L1);
    setWindowTitle(u"Font"_s);
    setModal(true);
    setPalette(Theme::of(this).panelPalette());
    m_fonts->setWindowFlags(Qt::Widget);
    m_fonts->setOptions(QFontDialog::NoButtons | QFontDialog::DontUseNativeDialog);
    m_fonts->setSizeGripEnabled(false);

    QPushButton *ok = makeButton(u"answerOk"_s, u"&OK"_s, this, ButtonKind::Main);
    QPushButton *cancel = makeButton(u"answerCancel"_s, u"&Cancel"_s, this);
    ok->setDefault(true);
    for (QPushButton *button : {ok, cancel})
        button->setMinimumWidth(104);
    auto *row = new QHBoxLayout;
    row->addWidget(m_colorButton);
    row->addStretch();
    row->addWidget(ok);
    row->addWidget(cancel);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(16, 16, 16, 16);
    rows->setSpacing(12);
    rows->addWidget(m_fonts, 1);
    rows->addLayout(row);

    connect(m_colorButton, &QPushButton::clicked, this, [this, &dialogs] {
        m_color = dialogs.chooseColor(this, m_color).value_or(m_color);
        showColor();
    });
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    // Esc and Enter inside the chooser close it alone: the box closes with it.
    connect(m_fonts, &QDialog::finished, this, &QDialog::done);
    showColor();
}

PageFont FontBox::chosen() const
{
    return {m_fonts->currentFont(), m_color};
}

void FontBox::showColor()
{
    QPixmap swatch(20, 20);
    swatch.fill(Qt::transparent);
    QPainter painter(&swatch);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Theme::of(this).edge);
    painter.setBrush(m_color);
    painter.drawRoundedRect(QRectF(1.5, 1.5, 17, 17), 4, 4);
    painter.end();
    m_colorButton->setIcon(swatch);
}
