#include "toolkit/outside/outside.h"

#include <cassert>

namespace trabeon {

namespace {

Outside* current = nullptr;

}  // namespace

Outside::Outside() : former_(current) {
    current = this;
}

Outside::~Outside() {
    current = former_;
}

Outside& Outside::Current() {
    assert(current && "the program makes its Outside before its first window");
    return *current;
}

}  // namespace trabeon
