// The end of a program that gets no more memory.
#pragma once

namespace trabeon {

// Says on standard error that memory has run out and ends the program with 1, without a destructor:
// the files are whole whenever the program ends. Needs no memory. Every program with an Application
// ends like this when malloc fails, because the toolkit and the libraries below it would go on
// without what they did not get: a picture is left out, a thread that never started is waited for.
[[noreturn]] void EndWithoutMemory();

}  // namespace trabeon
