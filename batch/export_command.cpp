#include "batch/export_command.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <map>

#include "batch/export_tables.h"
#include "batch/in_order.h"
#include "batch/options.h"
#include "core/design/design.h"
#include "core/store/output_file.h"
#include "core/store/replacing_file.h"
#include "core/text/readable.h"

namespace trabeon {
namespace {

std::string nameOf(const std::string& file) {
    return std::filesystem::path(file).filename().string();
}

std::string namesOfTables() {
    std::string names;
    for (const auto& table : exportTables())
        names += (names.empty() ? "" : ", ") + std::string(table.name);
    return names;
}

Outcome<const ExportTable*> tableOf(const CommandLine& line) {
    const auto& name = line.operands.back();
    for (const auto& table : exportTables())
        if (table.name == name)
            return &table;
    return Refusal{"There is no table \"" + excerpt(name) + "\". The tables are " +
                   namesOfTables() + "."};
}

Outcome<ExportSettings> exportSettings(const CommandLine& line) {
    ExportSettings settings;
    const auto format = line.option("--format").value_or("csv");
    if (format != "csv" && format != "json")
        return Refusal{"--format takes csv or json, not \"" + excerpt(format) + "\"."};
    settings.format = format == "json" ? Format::json : Format::csv;
    const auto analysis = settingsOf(line);
    if (!analysis)
        return analysis.refusal();
    settings.analysis = *analysis;
    const auto misc = propertiesOf(line);
    if (!misc)
        return misc.refusal();
    settings.misc = *misc;
    return settings;
}

/// What the column "project" has for each file: its name, or the path as given if another one of
/// the files has the same name.
std::vector<std::string> columnNames(const std::vector<std::string>& files) {
    std::map<std::string, int> uses;
    for (const auto& file : files)
        ++uses[nameOf(file)];
    std::vector<std::string> names;
    names.reserve(files.size());
    for (const auto& file : files)
        names.push_back(uses[nameOf(file)] == 1 ? nameOf(file) : file);
    return names;
}

/// Standard output, or a file that is replaced when all is written.
class Output {
  public:
    explicit Output(const std::optional<std::string>& file) {
        if (file)
            file_.emplace(*file);
    }
    void write(std::string_view text) {
        if (file_)
            file_->write(text);
        else
            std::fwrite(text.data(), 1, text.size(), stdout);
    }
    Status commit() { return file_ ? file_->commit() : Status(); }

  private:
    std::optional<ReplacingFile> file_;
};

/// Puts the tables of the projects together. Nothing is written before the first of them.
class JoinedTable {
  public:
    JoinedTable(const ExportTable& table, Format format, bool several, Output& output)
        : table_(table), format_(format), several_(several), output_(output) {}

    /// The rows of a project follow.
    void begin(const ProjectTitle& title) {
        if (begun_)
            return output_.write(frame_.between);
        auto columns = table_.columns;
        if (several_)
            columns.insert(columns.begin(), "project");
        frame_ = frameOf(format_, table_.name, columns, several_ ? nullptr : &title);
        output_.write(frame_.before);
        begun_ = true;
    }
    void add(std::string_view rows) { output_.write(rows); }

    [[nodiscard]] Status finish() {
        if (!begun_)
            return {};
        output_.write(frame_.after);
        return output_.commit();
    }

  private:
    const ExportTable& table_;
    Format format_;
    bool several_;
    Output& output_;
    TableFrame frame_;
    bool begun_ = false;
};

/// How the tables begin that this program writes.
std::vector<std::string> startsOfTables() {
    std::vector<std::string> starts;
    for (const auto& table : exportTables()) {
        auto columns = table.columns;
        starts.push_back(frameOf(Format::csv, table.name, columns, nullptr).before);
        columns.insert(columns.begin(), "project");
        starts.push_back(frameOf(Format::csv, table.name, columns, nullptr).before);
    }
    starts.emplace_back("{\"project\":");
    return starts;
}

Objection checkSettings(const ExportSettings& settings, const std::optional<std::string>& out) {
    if (auto objection = checkSettings(settings.analysis))
        return objection;
    if (auto objection = checkDesignSettings(settings.analysis.Divisions, settings.misc))
        return objection;
    return out ? checkTableFile(*out, startsOfTables()) : Objection();
}

/// Of one project the rows are written as they are made.
Answer exportOne(const ExportTable& table, const std::string& file, const ExportSettings& settings,
                 JoinedTable& joined) {
    return exportTable(table, {file, ""}, settings,
                       {[&](const ProjectTitle& title) { joined.begin(title); },
                        [&](std::string_view rows) { joined.add(rows); }});
}

/// Of several projects the rows of each wait for their turn.
Exit exportSeveral(const ExportTable& table, const std::vector<std::string>& files,
                   const ExportSettings& settings, JoinedTable& joined) {
    const auto names = columnNames(files);
    const auto work = [&](std::size_t i) {
        return answerOf([&] {
            std::string text;
            auto answer = exportTable(
                table, {files[i], names[i]}, settings,
                {[](const ProjectTitle&) {}, [&](std::string_view rows) { text += rows; }});
            answer.out = std::move(text);
            return answer;
        });
    };
    auto end = Exit::done;
    std::size_t shown = 0;
    InOrder<Answer>::run(files.size(), work, [&](const Answer& answer) {
        showComplaints(answer, files[shown++]);
        end = std::max(end, answer.end);
        if (answer.end != Exit::done)
            return;
        joined.begin({});
        joined.add(answer.out);
    });
    return end;
}

}  // namespace

Exit exportCommand(const CommandLine& line) {
    const auto table = tableOf(line);
    if (!table)
        return wrongUsage(table.refusal());
    const auto settings = exportSettings(line);
    if (!settings)
        return wrongUsage(settings.refusal());
    const auto out = line.option("--out");
    if (const auto objection = checkSettings(*settings, out))
        return refused(*objection);
    const std::vector files(line.operands.begin(), line.operands.end() - 1);
    Output output(out);
    JoinedTable joined(**table, settings->format, files.size() > 1, output);
    auto end = Exit::done;
    if (files.size() == 1) {
        const auto answer = exportOne(**table, files[0], *settings, joined);
        showComplaints(answer, "");
        end = answer.end;
    } else {
        end = exportSeveral(**table, files, *settings, joined);
    }
    const auto status = joined.finish();
    return status.failed() ? refused(status.refusal()) : end;
}

}  // namespace trabeon
