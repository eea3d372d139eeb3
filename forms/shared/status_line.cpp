#include "forms/shared/status_line.h"

#include "core/analysis/beam_summary.h"
#include "toolkit/controls/text_box.h"
#include "toolkit/windows/mdi_window.h"

namespace trabeon {
namespace {

constexpr auto gap = "    ";

std::string counted(std::size_t count, const char* noun) {
    return std::to_string(count) + ' ' + noun + (count == 1 ? "" : "s");
}

const char* acceptedBy(std::string_view accepted) {
    return accepted == signedNumber ? " accepts digits, a point and a minus sign"
                                    : " accepts digits and a point";
}

}  // namespace

void say(const Context& context, const std::string& event) {
    context.forms.Window().SetEvent(event);
}

void offerRestore(Context& context, const std::string& what, std::function<void()> restore) {
    auto& closed = context.closedWindows;
    std::erase_if(closed, [&](const auto& window) { return window.first == what; });
    closed.emplace_back(what, std::move(restore));
    say(context, what + " was emptied, because its window was closed. Ctrl+Z brings it back");
}

void restoreClosedWindow(Context& context) {
    if (context.closedWindows.empty())
        return;
    const auto restore = std::move(context.closedWindows.back().second);
    context.closedWindows.pop_back();
    restore();
}

void showSummary(const Context& context) {
    const auto beam = beamSummary(context.folder);
    std::string text = counted(beam.joints, "joint") + gap + counted(beam.members, "member") + gap +
                       "length " + beam.length;
    if (context.dataChanged == 1)
        text += std::string(gap) + "Changed";
    context.forms.Window().SetSummary(text);
}

void acceptNumbers(const Context& context, TextBox& box, const NumberKeys& keys) {
    box.KeyPress = [&context, keys](int& keyAscii) { filterKeysAndSay(context, keyAscii, keys); };
}

void filterKeysAndSay(const Context& context, int& keyAscii, const NumberKeys& keys) {
    const bool isEnter = keyAscii == enterKey;
    if (keys.next != nullptr)
        filterKeys(keyAscii, keys.accepted, *keys.next);
    else
        filterKeys(keyAscii, keys.accepted);
    if (keyAscii == 0 && !isEnter)
        say(context, keys.name + std::string(acceptedBy(keys.accepted)));
}

}  // namespace trabeon
