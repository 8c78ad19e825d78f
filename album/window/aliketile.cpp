// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/window/aliketile.h"

#include "shell/controls/controls.h"
#include "shell/pictures/pictureframe.h"

#include <QCheckBox>
#include <QImage>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr QSize pictureSize(272, 236);
}

AlikeTile::AlikeTile(int place, QWidget *parent)
    : QWidget(parent)
    , m_frame(named(new PictureFrame(this), u"alikePicture_%1"_s.arg(place)))
    , m_facts(makeQuietLabel({}, this))
    , m_goes(named(new QCheckBox(u"Is to go"_s, this), u"alikeGoes_%1"_s.arg(place)))
{
    setObjectName(u"alikeTile_%1"_s.arg(place));
    m_facts->setWordWrap(true);
    m_frame->setFixedSize(pictureSize);
    m_facts->setFixedWidth(pictureSize.width());
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(8);
    column->addWidget(m_frame);
    column->addWidget(m_goes); // above the facts, which have more lines here than there
    column->addWidget(m_facts);
    column->addStretch(1);
    connect(m_goes, &QCheckBox::toggled, this, &AlikeTile::goingChanged);
}

void AlikeTile::show(const QString &name, const QString &facts)
{
    m_facts->setText(facts);
    m_frame->setAccessibleName(name);
    m_goes->setAccessibleName(u"%1 is to go"_s.arg(name));
    m_goes->setChecked(false);
    m_frame->clear();
    QWidget::show();
}

void AlikeTile::setImage(const QImage &image)
{
    m_frame->setImage(image);
}

void AlikeTile::setWords(const QString &words)
{
    m_frame->setWords(words);
}

bool AlikeTile::isGoing() const
{
    return m_goes->isChecked();
}
