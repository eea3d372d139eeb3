#include "core/store/station_reader.h"

#include <algorithm>
#include <cmath>

namespace trabeon {

std::size_t stationRowsOf(double Divisions) {
    constexpr double maxDivisions = 10'000;
    return static_cast<std::size_t>(
        std::max(0.0, std::floor(std::min(Divisions, maxDivisions)) + 2));
}

bool StationReader::next() {
    if (ended_ || rowsPerMember_ == 0)
        return false;
    const bool begins = member_ == 0 || section_ == rowsPerMember_;
    ended_ = (begins && !passHeading()) || !passRow();
    return !ended_;
}

bool StationReader::passHeading() {
    if (reader_.atEnd())
        return false;
    const bool heading = reader_.next().starts_with("Span");
    ++member_;
    section_ = 0;
    return heading && reader_.lineEnded();
}

bool StationReader::passRow() {
    if (reader_.atEnd())
        return false;
    bool whole = true;
    row_.x = reader_.next();
    whole = whole && !reader_.lineEnded();
    row_.moment = reader_.next();
    whole = whole && !reader_.lineEnded();
    row_.shear = reader_.next();
    whole = whole && reader_.lineEnded();
    ++section_;
    return whole;
}

bool StationReader::endsMember() const {
    if (ended_ || member_ == 0 || section_ != rowsPerMember_)
        return false;
    auto ahead = *this;
    return ahead.reader_.atEnd() || ahead.passHeading();
}

std::vector<StationRow> stationRows(std::string_view text, std::size_t rowsPerMember,
                                    std::size_t member) {
    std::vector<StationRow> rows;
    StationReader reader(text, rowsPerMember);
    while (reader.next() && reader.member() <= member)
        if (reader.member() == member)
            rows.push_back(reader.row());
    return rows;
}

}  // namespace trabeon
