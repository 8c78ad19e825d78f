// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pictures/papercopies.h"

#include "shell/pages/pagepicture.h"
#include "shell/pictures/picturefolder.h"

#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

PaperCopies::PaperCopies(const DataFolder &folder)
    : m_folder(folder)
{}

PaperCopies::~PaperCopies() = default;

QString PaperCopies::photo(const QString &name, const QString &stored, QSize most)
{
    const QString path =
        stored.trimmed().isEmpty() ? QString() : PictureFolder(m_folder).locate(stored.trimmed());
    if (path.isEmpty())
        return {};
    return keep(name, PagePicture::read(path, most).image);
}

QString PaperCopies::keep(const QString &name, const QImage &image)
{
    if (!m_copies)
        m_copies = std::make_unique<QTemporaryDir>();
    const QString path = m_copies->filePath(name + u".png"_s);
    return !image.isNull() && image.save(path, "PNG") ? path : QString();
}
