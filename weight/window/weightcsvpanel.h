// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/importpreview.h"
#include "weight/model/weighttable.h"

class WeightCsvImport;
struct Program;

/// The preview of a file of dates and weights that comes into a person's table: those that are new are taken.
class WeightCsvPanel final : public ImportPreview
{
    Q_OBJECT
public:
    explicit WeightCsvPanel(const Program &program);

    /// Shows the file at `path` beside the weigh-ins that are there. False, with the reason said, when it
    /// cannot be read.
    bool open(const QString &path, const WeightTable &weighIns);

signals:
    /// The lines are to be taken: the table becomes `weighIns`, as `line` says.
    void taken(const WeightTable &weighIns, const QString &line);

protected:
    QString hint() const override;
    QString whatBecomes() const override;
    QString nothingToTake() const override;
    void take() override;

private:
    const Program &m_program;
    const WeightCsvImport *m_import = nullptr;
};
