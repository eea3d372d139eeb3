// Bending moment, shear, rotation and deflection of a member as exact polynomials, piece by piece.
#pragma once

#include <cstddef>
#include <vector>

#include "core/response/bernstein.h"
#include "core/response/member_ends.h"

namespace trabeon {

enum class Quantity { moment, shear, rotation, deflection };

/// At a point load the shear has two values: just before the load and just after it, from left to
/// right. Every other quantity has one.
enum class Side { before, after };

/// moment: sagging positive. shear: the downward load to the left minus the left reaction.
/// rotation: the slope of the deflection, positive if the member goes down to the right.
/// deflection: downward positive, in the unit of length if E I is in load times length squared.
struct SectionResponse {
    double moment = 0, shear = 0, rotation = 0, deflection = 0;
};

/// A part of a member without a load boundary inside, from x to `end` (distances from the left
/// joint). `load` is the intensity, positive downward. With respect to the distance: the slope of
/// the shear is the load, that of the moment is minus the shear, that of the rotation is
/// -moment / (E I), and that of the deflection is the rotation.
struct ResponsePiece {
    double x = 0, end = 0, width = 0;
    Bernstein<1> load;
    Bernstein<2> shear;
    Bernstein<3> moment;
    Bernstein<4> rotation;
    Bernstein<5> deflection;
};

/// The curves of one member.
class MemberResponse {
  public:
    /// Of a member, from 1, whose loads are all on it (see objectionTo() in stray_loads.h). The
    /// cost is that of sorting the member's loads.
    MemberResponse(const LoadedBeam& loaded, std::size_t member);

    [[nodiscard]] double length() const { return L_; }
    [[nodiscard]] const MemberEnds& ends() const { return ends_; }

    /// The pieces from left to right. Each begins where the one before it ends: these places are
    /// the breakpoints.
    [[nodiscard]] const std::vector<ResponsePiece>& pieces() const { return pieces_; }

    /// The point loads at the breakpoints, which are one more than the pieces: the shear jumps by
    /// them. 0 where there is none.
    [[nodiscard]] const std::vector<double>& forces() const { return forces_; }

    /// All four at the distance x, from 0 to the length. A section within 1e-12 of the length of a
    /// breakpoint is at it. Before x = 0 the shear is minus the left reaction, after x = L it is
    /// the right one.
    [[nodiscard]] SectionResponse at(double x, Side side = Side::before) const;

    /// The same at a breakpoint, from 0.
    [[nodiscard]] SectionResponse atBreakpoint(std::size_t breakpoint, Side side) const;

    /// A value below this is a rounding error: at() shows 0.
    [[nodiscard]] double dust(Quantity quantity) const;

    /// False if a value is beyond the range of a double.
    [[nodiscard]] bool isFinite() const;

  private:
    void makePieces(const LoadedBeam& loaded, std::size_t member);
    void integrateForces();
    void integrateShape(double EI);
    [[nodiscard]] SectionResponse settled(const SectionResponse& values) const;

    double L_ = 0;
    MemberEnds ends_;
    std::vector<ResponsePiece> pieces_;
    std::vector<double> forces_;
    SectionResponse dust_;
};

/// Whether the curves of a member between two supports cannot come near the range of a double. This
/// is cheaper than to calculate them.
[[nodiscard]] bool isFarFromOverflow(const LoadedBeam& loaded, std::size_t member);

/// Of the four quantities the one asked for.
[[nodiscard]] double valueOf(const SectionResponse& section, Quantity quantity);

}  // namespace trabeon
