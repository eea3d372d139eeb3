// Shows the wait cursor for as long as it lives.
#pragma once

namespace trabeon {

class WaitCursor {
  public:
    WaitCursor();
    ~WaitCursor();
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};

}  // namespace trabeon
