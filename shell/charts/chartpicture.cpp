// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/charts/chartpicture.h"

#include "storage/saving.h"

#include <QBuffer>
#include <QFile>

namespace {

constexpr int quality = 92;

bool write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}

} // namespace

QString ChartPicture::store(const QImage &image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (image.isNull() || !image.save(&buffer, "JPG", quality))
        return {};
    // A household that is for reading only can be printed all the same.
    if (!m_folder.isReadOnly() && Saving::replaceFile(m_folder, fileName, bytes))
        return m_folder.filePath(fileName);
    if (!m_elsewhere)
        m_elsewhere = std::make_unique<QTemporaryDir>();
    const QString path = m_elsewhere->filePath(fileName);
    return m_elsewhere->isValid() && write(path, bytes) ? path : QString();
}
