#include "core/design/design_results.h"

#include <cmath>

#include "core/text/number_masks.h"
#include "core/text/number_text.h"

namespace trabeon {

double wholePart(double value) {
    return std::floor(leadingNumber(generatedText(value)));
}

DesignRow DesignResult(const SectionResult& result) {
    const auto cut = [](double value) { return generatedText(wholePart(value)); };
    const auto rounded = [](double value) { return generatedText(threeFiguresNumber(value)); };
    return {generatedText(result.Member), rounded(result.x),  cut(result.Asreq),
            cut(result.Aspreq),           cut(result.Asprov), cut(result.Aspprov),
            cut(result.MaxRein),          result.MomentRein,  rounded(result.AsvOsvreq),
            rounded(result.AsvOsvprov),   result.ShearRein,   cut(result.DefActual),
            cut(result.DefAllow),         result.DefNote};
}

}  // namespace trabeon
