// How the report becomes a part of the program.
#pragma once

namespace trabeon {

struct Context;

/// Registers the report's forms and takes up the report's place for pictures. It comes before the
/// first form is loaded: a button made earlier stays disabled. Removes the pictures that earlier
/// runs sent to the word processor.
void takeUpReport(Context& context);

}  // namespace trabeon
