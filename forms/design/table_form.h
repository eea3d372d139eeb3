// The base class of the two reference tables. Each load writes the table's file and lists it.
#pragma once

#include <filesystem>
#include <string_view>
#include <vector>

#include "core/outcome.h"
#include "forms/shared/context.h"
#include "toolkit/controls/list_view.h"
#include "toolkit/windows/form.h"

namespace trabeon {

class TableForm : public Form {
  public:
    ListView ListView1;

  protected:
    TableForm(Context& context, const char* caption, const std::vector<ListColumn>& columns,
              int listTop);

    void Form_Resize() override;

    /// Calls `write`, then shows the file in the list, one line per item.
    void BuildTable(Status (*write)(const std::filesystem::path& folder), std::string_view file);

    static constexpr int margin = 120;

  private:
    Context& context_;
    std::size_t columns_;
    int listTop_;
};

}  // namespace trabeon
