// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/vehiclefiles.h"
#include "cars/window/cardesk.h"
#include "shell/controls/importpreview.h"

class CarCsvImport;

/// The preview of a file that comes into a history or the fuel tracker.
class CsvPanel final : public ImportPreview
{
    Q_OBJECT
public:
    explicit CsvPanel(const CarDesk &desk);

    /// Shows the file at `path`, whose rows are for `part`. False, with the reason said, when it cannot be
    /// read.
    bool open(const QString &path, CarPart part);

signals:
    /// The lines were taken, as `line` says.
    void taken(const QString &line);

protected:
    QString hint() const override;
    QString whyReadOnly() const override;
    int wideColumn() const override;
    void take() override;

private:
    CarDesk m_desk;
    CarPart m_part = CarPart::Maintenance;
    const CarCsvImport *m_import = nullptr;
};
