// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pages/fixedface.h"

#include <QFontDatabase>
#include <QStringList>

using namespace Qt::Literals::StringLiterals;

/// The system's own is the last resort: it may be any face.
QFont FixedFace::font()
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setFamilies({u"DejaVu Sans Mono"_s, u"Cascadia Mono"_s, u"Consolas"_s, u"Noto Sans Mono"_s,
                      u"Liberation Mono"_s, font.family()});
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    font.setPointSizeF(QFont().pointSizeF());
    return font;
}
