// The room that the labels of a picture have taken, so that none comes upon another.
#pragma once

#include <cstddef>
#include <utility>
#include <vector>

namespace trabeon {

/// In pixels, y downward.
struct Box {
    double left = 0, top = 0, right = 0, bottom = 0;
};

class LabelRoom {
  public:
    /// For a picture of this width. A look-up takes the time of the labels nearby.
    explicit LabelRoom(double width);

    /// No box that was taken comes upon this one; touching is allowed.
    [[nodiscard]] bool isFree(const Box& box) const;
    void take(const Box& box);

  private:
    /// The strips of the picture that a box reaches: first and last.
    [[nodiscard]] std::pair<std::size_t, std::size_t> stripsOf(const Box& box) const;

    std::vector<std::vector<Box>> strips_;  // of equal width, from left to right
};

}  // namespace trabeon
