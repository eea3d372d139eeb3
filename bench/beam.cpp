// Writes the working files of a beam with a given number of spans, as the editors write them before
// the first analysis. Joint types, members and loads are mixed, numbers have one to four digits,
// and there are sections for a design with 10 divisions. The files are the same on every machine.
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "core/store/file_set.h"
#include "core/store/working_files.h"

namespace {

using trabeon::FileSet;
using trabeon::ReplacingFile;
using trabeon::working_file::beamDimensions;
using trabeon::working_file::joint;
using trabeon::working_file::member;
using trabeon::working_file::point;
using trabeon::working_file::udl;

/// A 64-bit linear congruential generator: the beams do not depend on a library.
class Dice {
  public:
    explicit Dice(std::uint64_t seed) : state_(seed * 2 + 1) {}

    int roll(int least, int greatest) {
        state_ = state_ * 6364136223846793005U + 1442695040888963407U;
        const auto sides = static_cast<std::uint64_t>(greatest - least + 1);
        return least + static_cast<int>((state_ >> 33) % sides);
    }
    bool chance(int percent) { return roll(1, 100) <= percent; }

    template <std::size_t size>
    const char* oneOf(const std::array<const char*, size>& texts) {
        return texts[static_cast<std::size_t>(roll(0, static_cast<int>(size) - 1))];
    }

  private:
    std::uint64_t state_;
};

/// Hundredths as a user types them: 450 gives "4.5".
std::string hundredths(int count) {
    auto text = std::to_string(count / 100);
    if (const int rest = count % 100; rest > 0) {
        text += rest < 10 ? ".0" : ".";
        text += std::to_string(rest % 10 == 0 ? rest / 10 : rest);
    }
    return text;
}

constexpr std::array descriptions{"None", "None", "None", "Partition wall", "Roof, east bay"};

void writeJoints(ReplacingFile& file, Dice& dice, int spans) {
    constexpr std::array ends{"Fixed", "Pin Jointed", "Cantilever"};
    for (int j = 1; j <= spans + 1; ++j) {
        const bool inner = j > 1 && j <= spans;
        const char* type = inner ? "Continuous" : dice.oneOf(ends);
        file.write(std::to_string(j) + ',' + type + ",\"None\"\r\n");
    }
}

void writePointLoads(ReplacingFile& file, Dice& dice, int span, int length) {
    for (int count = dice.chance(40) ? dice.roll(1, 3) : 0; count > 0; --count)
        file.write(std::to_string(span) + ',' + hundredths(length * dice.roll(1, 19) / 20) + ',' +
                   hundredths(50 * dice.roll(2, 400)) + ",\"" + dice.oneOf(descriptions) +
                   "\"\r\n");
}

void writeUdl(ReplacingFile& file, int span, int a, int b, int w1, int w2, const char* what) {
    file.write(std::to_string(span) + ',' + hundredths(a) + ',' + hundredths(b) + ',' +
               hundredths(w1) + ',' + hundredths(w2) + ",\"" + what + "\"\r\n");
}

/// Most spans have a uniform load over their whole length. Some also have a trapezoid on a part.
void writeUdls(ReplacingFile& file, Dice& dice, int span, int length) {
    if (dice.chance(85)) {
        const int w = 50 * dice.roll(4, 120);
        writeUdl(file, span, 0, length, w, w, dice.oneOf(descriptions));
    }
    if (dice.chance(30)) {
        const int a = length * dice.roll(0, 10) / 20;
        const int b = length * dice.roll(2, 10) / 20;
        writeUdl(file, span, a, b, 50 * dice.roll(0, 80), 50 * dice.roll(1, 80),
                 dice.oneOf(descriptions));
    }
}

/// The sections are deep enough for the shear of all these beams: after one shear failure the
/// design calculates no more links.
void writeSections(ReplacingFile& file, Dice& dice, int span, int length) {
    const int depth = 50 * dice.roll(26, 34);
    const auto sizes = std::to_string(25 * dice.roll(20, 32)) + ',' + std::to_string(depth) + ',' +
                       std::to_string(depth - 60) + ",40,460,200000,250," + hundredths(length);
    for (int section = 1; section <= 12; ++section)
        file.write(std::to_string(span) + ',' + std::to_string(section) + ',' + sizes + "\r\n");
}

void writeBeam(FileSet& files, int spans) {
    constexpr std::array moduli{"25.5", "28", "30", "32.8", "205"};
    Dice dice(static_cast<std::uint64_t>(spans));
    writeJoints(files.add(joint), dice, spans);
    auto& members = files.add(member);
    auto& points = files.add(point);
    auto& udls = files.add(udl);
    auto& sections = files.add(beamDimensions);
    Dice sizes(static_cast<std::uint64_t>(spans) + 1);
    for (int span = 1; span <= spans; ++span) {
        const int length = 5 * dice.roll(50, 240);
        members.write(std::to_string(span) + ',' + dice.oneOf(moduli) + ',' +
                      hundredths(dice.roll(40, 4000)) + ',' + hundredths(length) + ",\"None\"\r\n");
        writePointLoads(points, dice, span, length);
        writeUdls(udls, dice, span, length);
        writeSections(sections, sizes, span, length);
    }
    // Loads that the user added last are last in the file, on any member.
    for (int i = 0; i < spans / 20; ++i)
        writePointLoads(points, dice, dice.roll(1, spans), 250);
}

}  // namespace

int main(int argc, char** argv) {
    const int spans = argc == 3 ? std::atoi(argv[1]) : 0;
    if (spans < 1 || spans > 10'000'000) {
        std::fputs("Usage: bench-beam SPANS DIR (1 to 10,000,000 spans)\n", stderr);
        return 2;
    }
    std::error_code error;
    std::filesystem::create_directories(argv[2], error);
    for (const auto name : trabeon::filesDeletedAtExit)
        trabeon::MurderFile(std::filesystem::path(argv[2]) / name);
    auto files = FileSet::begin(argv[2]);
    writeBeam(files, spans);
    if (const auto status = files.commit(); status.failed()) {
        std::fprintf(stderr, "%s\n", status.refusal().sentence.c_str());
        return 1;
    }
}
