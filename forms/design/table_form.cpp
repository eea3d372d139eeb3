#include "forms/design/table_form.h"

#include "core/store/working_files.h"
#include "core/text/field_reader.h"
#include "forms/shared/messages.h"

namespace trabeon {

TableForm::TableForm(Context& context, const char* caption, const std::vector<ListColumn>& columns,
                     int listTop)
    : Form(caption),
      ListView1(*this, columns),
      context_(context),
      columns_(columns.size()),
      listTop_(listTop) {
    ListView1.SetGridLines(true);
    ListView1.SetMultiSelect(true);
    ListView1.SetAccessibleName(caption);
    SetTabOrder({&ListView1});
}

void TableForm::Form_Resize() {
    ListView1.Move(margin, listTop_, ScaleWidth() - 2 * margin, ScaleHeight() - listTop_ - margin);
}

void TableForm::BuildTable(Status (*write)(const std::filesystem::path& folder),
                           std::string_view file) {
    ListView1.ListItems.Clear();
    if (const auto status = write(context_.folder); status.failed()) {
        warn(status.refusal().sentence);
        return;
    }
    const auto text = readWhole(context_.folder / file);
    FieldReader reader(text);
    while (!reader.atEnd()) {
        auto item = ListView1.ListItems.Add(std::string(reader.next()));
        for (std::size_t n = 1; n < columns_; ++n)
            item.SetSubItems(static_cast<int>(n), std::string(reader.next()));
    }
}

}  // namespace trabeon
