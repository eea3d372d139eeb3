// Bending moment and shear force in the spans, by superposition on the simple span.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/analysis/beam.h"
#include "core/analysis/member_loads.h"

namespace trabeon {

/// Sagging positive; the shear is the downward load to the left minus the upward left reaction.
struct SectionForces {
    double moment = 0, shear = 0;
};

/// A section of a span at the distance x from its left joint.
struct Station {
    double x = 0;
    SectionForces forces;
};

/// The loads and the number of equal parts of each span, and what they give at sections. The loads
/// must outlive it.
class SpanResults {
  public:
    SpanResults(const MemberLoads<UdlLoad>& udls, const MemberLoads<PointLoad>& points,
                int Divisions)
        : udls_(udls), points_(points), Divisions_(Divisions) {}

    /// FindMax "N": the stations x(k) = k × Length / Divisions of every span, 0 to Divisions, the
    /// last at the length exactly; they stand in stations() afterwards, one span behind the other.
    /// FindMax "Y": the one section X_Dist of span MemNo, at index 0 of TempMx and TempVx.
    /// B_Moment and S_Force take the texts, in the mask "0.00E+00", of the last section calculated;
    /// a value that is not finite has an empty text.
    /// TempMx and TempVx take moments and shears by station, index 0 to Divisions. XDist1, XDist2
    /// and CorrectTo are the caller's bracket and its width, passed along. Final holds the end
    /// moments by member end (clockwise positive); arrays count from 1.
    void FindMxSx(double XDist1, double XDist2, double CorrectTo, std::size_t MemNo, double X_Dist,
                  std::string& B_Moment, std::string& S_Force, std::string_view FindMax,
                  std::vector<double>& TempMx, std::vector<double>& TempVx,
                  const std::vector<double>& Length, const std::vector<double>& Final,
                  const std::vector<Joint>& SupportType, std::size_t Supports);

    [[nodiscard]] const std::vector<Station>& stations() const { return stations_; }
    [[nodiscard]] std::vector<Station> takeStations() { return std::move(stations_); }
    [[nodiscard]] int Divisions() const { return Divisions_; }
    [[nodiscard]] std::size_t stationsPerSpan() const {
        return static_cast<std::size_t>(Divisions_) + 1;
    }

  private:
    const MemberLoads<UdlLoad>& udls_;
    const MemberLoads<PointLoad>& points_;
    int Divisions_;
    std::vector<Station> stations_;
};

}  // namespace trabeon
