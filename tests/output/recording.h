// A word processor that records its calls, a line for each, and chart forms that do so too.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "core/text/number_text.h"
#include "output/chart_forms.h"
#include "output/word_processor.h"

namespace trabeon::test {

constexpr auto wordStops =
    "The Word For Windows Program Was Automatically and Purposely Exitted Due To The Programmer's "
    "Preference in Using Lotus. However, if you would like to use Word For Windows For Your "
    "Printing Purposes, Please Email The Programmer.";

using Calls = std::vector<std::string>;

class RecordingProcessor : public WordProcessor {
  public:
    void Call(std::string_view member, const Arguments& arguments) override {
        std::string line(member);
        for (const auto& [name, value] : arguments)
            line += (&name == &arguments.front().name ? " " : ", ") + std::string(name) +
                    (name.empty() ? "" : "=") + shown(value);
        calls.push_back(line);
    }

    /// The calls, a line each; "6 x" before one that comes six times in a row.
    [[nodiscard]] std::string text() const {
        std::string text;
        for (auto call = calls.begin(); call != calls.end();) {
            const auto next = std::find_if(call, calls.end(), [&](auto& c) { return c != *call; });
            if (next - call > 2)
                text += std::to_string(next - call) + " x ";
            text += *call + '\n';
            call = next - call == 2 ? call + 1 : next;
        }
        return text;
    }

    Calls calls;

  private:
    static std::string shown(const Value& value) {
        if (const auto* truth = std::get_if<bool>(&value))
            return *truth ? "True" : "False";
        if (const auto* whole = std::get_if<int>(&value))
            return std::to_string(*whole);
        if (const auto* number = std::get_if<double>(&value))
            return generatedText(*number).substr(1);
        return '"' + std::get<std::string>(value) + '"';
    }
};

/// Writes into the calls of the processor, so that the order of both is seen.
class RecordingCharts : public ChartForms {
  public:
    RecordingCharts(Calls& calls, int members) : calls_(calls), members_(members) {}

    int ShowSingleSpan() override {
        calls_.emplace_back("(show single span)");
        return members_;
    }
    void CopyMoment(int member) override {
        calls_.push_back("(moment " + std::to_string(member) + ")");
    }
    void CopyShear(int member) override {
        calls_.push_back("(shear " + std::to_string(member) + ")");
    }
    void PlotContinuous() override { calls_.emplace_back("(plot continuous)"); }
    void CopyContinuousMoment() override { calls_.emplace_back("(continuous moment)"); }
    void CopyContinuousShear() override { calls_.emplace_back("(continuous shear)"); }
    void RestoreWindows() override { calls_.emplace_back("(restore)"); }

  private:
    Calls& calls_;
    int members_;
};

}  // namespace trabeon::test
