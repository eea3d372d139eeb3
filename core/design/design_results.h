// "DResult.txt": a line for each section of each member.
#pragma once

#include <cstddef>
#include <string>

#include "core/store/rows.h"

namespace trabeon {

/// The results of a section as numbers: distance in m, steel areas in mm2, link areas in mm2/mm,
/// ratios of span to effective depth. Member counts from 1.
struct SectionResult {
    std::size_t Member = 0;
    double x = 0, Asreq = 0, Aspreq = 0, Asprov = 0, Aspprov = 0, MaxRein = 0;
    std::string MomentRein;
    double AsvOsvreq = 0, AsvOsvprov = 0;
    std::string ShearRein;
    double DefActual = 0, DefAllow = 0;
    std::string DefNote;
};

/// A line of the file, each field as it is written, with its leading blank.
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

/// The largest whole number not above a value, taken at 15 significant digits: what is 3150 on
/// paper does not become 3149.
[[nodiscard]] double wholePart(double value);

/// The line of a section, whose numbers are all finite: x and the link areas to three figures,
/// steel areas and ratios cut to whole numbers.
[[nodiscard]] DesignRow DesignResult(const SectionResult& result);

}  // namespace trabeon
