#pragma once

#include "protocol/commands.h"
#include "report/report_model.h"

namespace ferna {

/// Writes a report as drawing commands for the renderer: millimetres on the page, x to the right
/// and y downward from the top left corner of the frame; numbers always carry a point.
class WydWriter {
public:
    /// `folder` is that of the pictures; `prefix` stands before their names in the records.
    WydWriter(ReportModel report, QString folder, QString prefix = {})
        : report_(std::move(report)), folder_(std::move(folder)), prefix_(std::move(prefix)) {}

    /// The page frame with the title block.
    void Naglowek_wyd();
    /// The frame and the whole body behind it.
    void body();

    /// Page test for a body line at `Poz_y`: from 225 on a new page begins, with its frame, at 40.
    void KoniecZ98();
    /// Page test before a block of `wysokosc` mm at y: at 236 or beyond, or where it would end past
    /// 290, a new page begins and y and y2 become 40.
    void KoniecZ98R(Single& y, Single& y2, Integer wysokosc);

    TextFileWriter& file() { return commands_.file(); }
    /// Names of the pictures that the records place, without the prefix.
    const QStringList& pictures() const { return pictures_; }
    Single Poz_y = 0;          ///< running y of the body, mm
    Single Poz_y_blachy = 0;   ///< y of the plate section's blocks, mm
    Integer Licznik_stron = 0; ///< pages begun by the page tests

private:
    void bodyLine(const QString& text, QStringView yPattern = u"#0.0", bool underlined = false);
    void underlinedLine(const QString& text);
    void picture(const wyd::PictureFields& fields, const QString& name);
    void newPage();
    void generalData();
    void bodyLines(const QStringList& lines);
    void loadCase(const ReportCase& section);
    void exceedanceLine(const QString& text, const QString& ratio);
    void summary(const ReportSummary& section);
    void plateSection(const ReportPlate& section);
    void anchorSection(const ReportAnchor& section);

    const ReportModel report_;
    QString folder_;
    QString prefix_;
    wyd::CommandWriter commands_;
    QStringList pictures_;
};

/// Writes both command files into the program folder, and saves the anchor sketch where there is an
/// anchor section. Errors of `writeFileWhole`.
void Buduj_wyd(const ReportModel& report, const QString& folder);

} // namespace ferna
