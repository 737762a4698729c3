/// `tavik-cli model`: parts as models for circuit simulators.

#include "cli/Command.h"
#include "cli/Commands.h"
#include "cli/FileArguments.h"
#include "cli/Output.h"
#include "cli/RequestOptions.h"
#include "simulation/ModelFile.h"
#include "terminal/HelpText.h"
#include "terminal/Progress.h"
#include "terminal/Terminal.h"

#include <CLI/CLI.hpp>

namespace
{
struct ModelOptions
{
    std::vector<std::string> Parts;
    bool IsAll = false;
    CodeView Code = CodeView::Eia;
    CurveSettings Settings;
    std::string DataFolder;
    std::string OutputFile;

    std::size_t Form() const { return static_cast<std::size_t>(Code) + Settings.NumberingOffset; }
};
} // namespace

static constexpr const char* examples = R"(Examples:
  tavik-cli model KTS31NB51A476MA01 --output KTS31NB51A476MA01.lib
  tavik-cli model KTS31NR71A226KA01 KTS188R71H104KA01 --output rail.lib
  tavik-cli model --all --output range.lib

)";

static std::string Help()
{
    return examples +
           Wrapped("Each model is a subcircuit named after its part, for ngspice, LTspice and PSpice. Its "
                   "charge follows DC voltage and temperature as the capacitance charts do; its resistance "
                   "is that of the heating data. The comment before it tells how it is connected and what "
                   "it leaves out. A named part without a model ends the command; --all leaves such parts "
                   "out and tells how many, and why.");
}

/// Throws Failure for the first part that has no model.
static ModelFile ModelsOfNamed(const ModelOptions& options, const PartTable& parts)
{
    ModelFile models(options.Form());
    for (const auto& name : options.Parts)
    {
        const auto& part = parts.PartData[FindPart(parts, name, options.Form())];
        if (const auto refusal = models.Add(part))
        {
            throw Failure(ShownPartNum(part, options.Code, options.Settings) + ": " +
                          std::string(TextOf(*refusal)) + ", so there is no model");
        }
    }
    return models;
}

static ModelFile ModelsOfAll(const ModelOptions& options, const PartTable& parts)
{
    ModelFile models(options.Form());
    Progress progress("models", parts.PartData.size());
    for (const auto& part : parts.PartData)
    {
        models.Add(part);
        progress.Advance(1);
    }
    return models;
}

static void WriteModels(const ModelOptions& options)
{
    if (options.Parts.empty() != options.IsAll)
    {
        throw UsageError(options.IsAll ? "model wants part numbers or --all, not both"
                                       : "model wants a part number, or --all");
    }
    RefuseInputAsOutput(options.OutputFile, PartFilesOf(PartFolder(options.DataFolder)));
    const auto parts = LoadParts(options.DataFolder);
    const auto models = options.IsAll ? ModelsOfAll(options, parts) : ModelsOfNamed(options, parts);
    Output output(options.OutputFile);
    output.Write(models.Text());
    output.Finish();
    if (models.HasLeftOut())
    {
        TellLine("tavik-cli: " + models.Summary());
    }
}

void AddModelCommand(CLI::App& app)
{
    const auto options = std::make_shared<ModelOptions>();
    auto& command = *app.add_subcommand("model", "Writes parts as models for circuit simulators");
    command.footer(Help());
    command.add_option("parts", options->Parts, "Part numbers in any of their forms, any letter case")
        ->type_name("PART");
    command.add_flag("--all", options->IsAll, "All parts of the range that have a model");
    AddCodeOption(command, options->Code);
    AddNumberingOption(command, options->Settings);
    AddDataOption(command, options->DataFolder);
    AddOutputOption(command, options->OutputFile);
    command.callback([options] { WriteModels(*options); });
}
