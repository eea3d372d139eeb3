#include "core/design/design_results.h"

#include <cmath>

#include "core/text/number_masks.h"
#include "core/text/number_text.h"

namespace trabeon {

double threeFiguresNumber(double value) {
    return leadingNumber(threeFigures(value));
}

double wholePart(double value) {
    return std::floor(leadingNumber(generatedText(value)));
}

DesignRow DesignResult(std::size_t Member, double& x, double& Asreq, double& Aspreq, double& Asprov,
                       double& Aspprov, double /*MinTenRein*/, double /*MinCompRein*/,
                       double& MaxRein, const std::string& MomentRein, double& AsvOsvreq,
                       double& AsvOsvprov, const std::string& ShearRein, double& DefActual,
                       double& DefAllow, const std::string& DefNote, double /*OriginMoment*/,
                       double /*OriginShear*/) {
    for (double* value : {&x, &AsvOsvreq, &AsvOsvprov})
        *value = threeFiguresNumber(*value);
    for (double* value : {&Asreq, &Aspreq, &Asprov, &Aspprov, &MaxRein, &DefActual, &DefAllow})
        *value = wholePart(*value);
    return {generatedText(static_cast<double>(Member)),
            generatedText(x),
            generatedText(Asreq),
            generatedText(Aspreq),
            generatedText(Asprov),
            generatedText(Aspprov),
            generatedText(MaxRein),
            MomentRein,
            generatedText(AsvOsvreq),
            generatedText(AsvOsvprov),
            ShearRein,
            generatedText(DefActual),
            generatedText(DefAllow),
            DefNote};
}

}  // namespace trabeon
