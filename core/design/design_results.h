// "DResult.txt": a line for each section of each member.
#pragma once

#include <string>

#include "core/store/rows.h"

namespace trabeon {

/// A line of the file, its fields with the blanks in front that they are written with.
struct DesignRow {
    std::string Member, x, Asreq, Aspreq, Asprov, Aspprov, MaxRein, MomentRein, AsvOsvreq,
        AsvOsvprov, ShearRein, DefActual, DefAllow, DefNote;

    static constexpr std::array fields{
        &DesignRow::Member,     &DesignRow::x,          &DesignRow::Asreq,
        &DesignRow::Aspreq,     &DesignRow::Asprov,     &DesignRow::Aspprov,
        &DesignRow::MaxRein,    &DesignRow::MomentRein, &DesignRow::AsvOsvreq,
        &DesignRow::AsvOsvprov, &DesignRow::ShearRein,  &DesignRow::DefActual,
        &DesignRow::DefAllow,   &DesignRow::DefNote};
    static constexpr auto file = working_file::designResults;
    static constexpr bool described = false;
};

/// The number that the mask "0.00E+00" leaves of a value: 1.236 is 1.24.
[[nodiscard]] double threeFiguresNumber(double value);

/// The largest whole number not above a value, taken at 15 significant digits: what is 3150 on
/// paper does not become 3149.
[[nodiscard]] double wholePart(double value);

/// The line of a section. Converts the values in place: x (m) and the link areas (mm2/mm) to three
/// figures, steel areas (mm2) and ratios to whole numbers. All are finite. MinTenRein, MinCompRein,
/// OriginMoment and OriginShear are not written.
[[nodiscard]] DesignRow DesignResult(
    std::size_t Member, double& x, double& Asreq, double& Aspreq, double& Asprov, double& Aspprov,
    double MinTenRein, double MinCompRein, double& MaxRein, const std::string& MomentRein,
    double& AsvOsvreq, double& AsvOsvprov, const std::string& ShearRein, double& DefActual,
    double& DefAllow, const std::string& DefNote, double OriginMoment, double OriginShear);

}  // namespace trabeon
