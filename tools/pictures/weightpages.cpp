// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/pictures/albums.h"
#include "tools/pictures/picturesession.h"

#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A file of weights in the preview.
void takeFile(PictureSession &session)
{
    const QString path = session.program().folder.filePath(u"scales.csv"_s);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write("Date;Weight (lb);Note\n"
                                                       "06.08.2026;193,1 lb;\n"
                                                       "10.08.2026;192,2 lb;\n"
                                                       "14.08.2026;191,4 lb;after the lake\n"
                                                       "soon;190,9 lb;\n"
                                                       "21.08.2026;heavy;\n"
                                                       "24.08.2026;190,8 lb;\n") < 1)
        qFatal("the file of weights cannot be written");
    file.close();
    session.box([&] { session.trigger("mUBringIn"); },
                [&] {
                    session.fill("fileNameEdit", path);
                    session.key(Qt::Key_Return);
                });
    session.take("weight-import");
    session.click("weightImportTake");
    session.take("weight-brought-in");
}

void takePages(PictureSession &session)
{
    session.trigger("mOPrt");
    session.take("weight-print-options");
    session.click("weightPrintShow");
    session.take("weight-preview");
    session.takePage("weight-page");
    session.click("nextPage");
    session.takePage("weight-page-data");
    session.click("SSCommand80_1");
    session.takePage("weight-page-landscape");
    session.key(Qt::Key_Escape);
    session.key(Qt::Key_Escape);
}

} // namespace

void Albums::weightPages(const Camera &camera)
{
    PictureSession session(camera);
    session.open(Function::WeightTracker);
    session.clickRow("Combo1", 1);
    takePages(session);
    takeFile(session);
}
