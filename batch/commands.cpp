#include "batch/commands.h"

#include <cstdio>

#include "batch/export_command.h"
#include "batch/folder_commands.h"
#include "batch/run_command.h"

namespace trabeon {

const std::vector<CommandForm>& commands() {
    static const std::vector<CommandForm> forms{
        {"run",
         runCommand,
         "FILE.TB [FILE.TB ...]",
         {"--divisions N", "--places N", "--out DIR"},
         "Analyses projects. Shows the balance table, the moments, the maxima, the\n"
         "    deflections and the reactions, and designs the sections if the project has\n"
         "    dimensions. The result files go to DIR (those of several projects to a folder in\n"
         "    it for each). Without --out they go to a folder beside the project: \"beam\" for\n"
         "    \"beam.TB\", \"beam results\" for a project without an ending.",
         "trabeon-batch run examples/two-span-floor-beam.TB"},
        {"export",
         exportCommand,
         "FILE.TB [FILE.TB ...] TABLE",
         {"--format csv|json", "--out FILE", "--divisions N", "--places N", "--cover MM",
          "--link MM", "--aggregate MM", "--no-restrict"},
         "Calculates a table of results for other programs, from one project or from many:\n"
         "    relaxation, members, reactions, stations or design. It goes to standard output\n"
         "    or to FILE. No other file is written. The table of several projects begins with\n"
         "    the column \"project\", the name of the file.",
         "trabeon-batch export examples/two-span-floor-beam.TB members --format json"},
        {"analyse",
         analyseCommand,
         "DIR",
         {"--divisions N", "--places N"},
         "Analyses the beam in a folder of working files. Writes the result files there.",
         "trabeon-batch analyse work --divisions 20"},
        {"design",
         designCommand,
         "DIR",
         {"--divisions N", "--cover MM", "--link MM", "--aggregate MM", "--no-restrict"},
         "Designs the sections of the analysed beam in a folder. Writes the design results\n"
         "    there. The divisions must be those of the analysis.",
         "trabeon-batch design work --aggregate 20"},
        {"tables",
         tablesCommand,
         "DIR",
         {},
         "Writes the tables of bar areas and link resistances into a folder.",
         "trabeon-batch tables work"},
        {"unpack",
         unpackCommand,
         "FILE.TB DIR",
         {},
         "Unpacks a project file into the working files of a folder.",
         "trabeon-batch unpack examples/two-span-floor-beam.TB work"},
        {"pack",
         packCommand,
         "DIR FILE.TB",
         {"--title T", "--designer D", "--beam B"},
         "Packs the working files of a folder into a project file. Replaces only a project.",
         "trabeon-batch pack work beam.TB --title \"Warehouse\" --designer \"A. Engineer\" --beam "
         "B1"},
    };
    return forms;
}

Exit execute(const CommandLine& line) {
    if (line.command != nullptr)
        return line.command->execute(line);
    std::fputs(helpText(commands()).c_str(), stdout);
    return Exit::done;
}

}  // namespace trabeon
