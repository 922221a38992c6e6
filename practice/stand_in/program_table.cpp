#include "stand_in/program_table.h"

#include <algorithm>
#include <string>

namespace practice {

namespace {

constexpr Switch ToScreen{"listing to the screen", 'T', Meaning::ListingToScreen};
constexpr Switch ToPrinter{"listing to the printer", 'L', Meaning::ListingToPrinter};
constexpr Switch ToNowhere{"no listing", 'N', Meaning::NoListing};
constexpr Switch PauseAtEnd{"pause at the end", 'D', Meaning::Pause};

constexpr Switch Listing[] = {ToScreen, ToPrinter, ToNowhere};
constexpr Switch Analysis[] = {ToScreen, ToPrinter, ToNowhere, PauseAtEnd};
constexpr Switch Interactive[] = {
    ToScreen, ToPrinter, ToNowhere, PauseAtEnd, {"create a new simulation", 'C'}};
constexpr Switch Averaging[] = {ToScreen,
                                ToPrinter,
                                ToNowhere,
                                {"pause after each added file", 'W', Meaning::Pause},
                                {"initialize and add a file", 'I'},
                                {"normalize all records", 'A'},
                                {"normalize amplitudes to body mass", 'M'},
                                {"normalize the time base to percentages", 'P'},
                                {"echo raw and normalized data", 'E'},
                                {"subtract a file", 'S'},
                                {"compute the averages", 'C'},
                                {"95% confidence band", '5'},
                                {"99% confidence band", '9'},
                                {"band of one standard deviation", '1'},
                                {"band of two standard deviations", '2'},
                                {"print results row by row", 'R'}};
constexpr Switch Graphs[] = {ToScreen,
                             ToPrinter,
                             ToNowhere,
                             {"in colour", 'C'},
                             {"black on white", 'M'},
                             {"debugging information in the listing", 'D'},
                             {"batch mode", 'B'},
                             {"graphics to the screen", 'A'},
                             {"graphics device as at start", 'Z'}};
constexpr Switch ModelParts[] = {{"coordinates", 'C'}, {"records", 'R'}, {"markers", 'M'},
                                 {"forces", 'F'},      {"ground", 'G'},  {"names", 'N'}};
constexpr Switch PlateModel[] = {
    {"force data", 'F'}, {"from the .rf file", 'R'}, {"merge the .rf2 file", 'M'}, {"no questions", 'N'}};
constexpr Switch PlateAnalysis[] = {{"forces", 'F'}, {"impulses", 'I'}};
constexpr Switch PlateGraphs[] = {{"all records", 'A'},
                                  {"in colour", 'C'},
                                  {"draw the vectors", 'D'},
                                  {"in the plane", '2'},
                                  {"in three dimensions", '3'}};
constexpr Switch Display[] = {{"show on the screen", '1'},
                              {"print to a Laserjet 4, 5 or 6", '2'},
                              {"print to a colour Deskjet", '3'},
                              {"print to a Laserjet III", '4'},
                              {"print to a black and white Deskjet", '5'}};
constexpr Switch Animation[] = {{"convert the file to .dg", 'A'}, {"with the segments' .ks file", 'G'}};
constexpr std::span<const Switch> None;

constexpr std::string_view BinaryResult = ".km|.ks|.pj|.ps|.fo|.jp|.mm|.mu|.en|.fr|.sim|.dr|.ra|.av";

// Name, title, purpose, {needs, leaves}, writes a listing, switches.
constexpr Program Programs[] = {
    {"refila", "Refila", "scales and refines digitized data", {".dg", ".cn"}, true, Listing},
    {"errcheck", "Errcheck", "looks for digitizing errors in refined data", {".cn .cfb", ""}, true, Analysis},
    {"fourier", "Fourier", "finds the frequencies in each coordinate", {".cn .cfb", ".fr"}, true, Analysis},
    {"noise", "Noise", "finds the noise and the cut-off frequencies", {".cn .cfb", ".ns"}, true, Analysis},
    {"kinemati", "Kinemati", "differentiates filtered coordinates", {".cn .cfb", ".km .ks"}, true, Analysis},
    {"momentum", "Momentum", "computes linear and angular momentum", {".km .cfb", ".mm"}, true, Analysis},
    {"muscle", "Muscle", "computes muscle lengths and velocities", {".km .cfb", ".mu"}, true, Analysis},
    {"energy", "Energy", "computes mechanical energy and work", {".km .cfb", ".en"}, true, Analysis},
    {"torque", "Torque", "computes the moments of weight and inertia", {".km .cfb", ".tq"}, true, Analysis},
    {"force", "Force", "computes net joint forces and moments", {".km .cfb", ".fo .jp"}, true, Analysis},
    {"powers", "Powers", "computes joint powers", {".km .cfb .fo|.jp", ".ps .pj"}, true, Analysis},
    {"interact", "Interact", "changes the set-up of a simulation", {".cfb .sim", ".sim"}, false, Interactive},
    {"simulate", "Simulate", "runs a simulation", {".cfb .sim", ".sn"}, true, Analysis},
    {"options", "Options", "shows the options of a model", {".cfb", ""}, false, ModelParts},
    {"average", "Average", "adds a trial to an average", {"*.pj", "average.sss average.av"}, true, Averaging},
    {"graph", "Graph", "draws graphs of a trial's results", {BinaryResult, ".plt"}, true, Graphs},
    {"grafow", "GrafoW", "shows or prints a finished graph in a window", {"[*.plt]", ""}, false, Display},
    {"grafod", "GrafoD", "shows a finished graph on the full screen", {"[*.plt]", ""}, false, Display},
    {"acrospin", "Acrospin", "shows a wire-frame drawing and turns it", {"[*.acd]", ""}, false, None},
    {"skelvo", "Skelvo", "animates a trial", {"[*.dg]", ""}, false, Animation},
    {"skelvo98", "Skelvo98", "animates a trial in a window", {"[*.dg]", ""}, false, None},
    {"ondex2", "Ondex2", "processes signals in a window", {"[*.rf]", ""}, false, None},
    {"forces", "Forces", "analyses force-plate data in a window", {"[*.rf]", ""}, false, None},
    {"fpanalyz", "FPAnalyz", "finds the peaks and impulses of forces", {".rf", ""}, true, PlateAnalysis},
    {"fphist", "FPHist", "draws the histories of ground reaction forces", {".rf", ".plt"}, true, PlateGraphs},
    {"fpsig", "FPSig", "draws ground reaction force vectors over time", {".rf", ".plt"}, true, PlateGraphs},
    {"fplate", "FPlate", "adds ground reaction forces to a model", {".rf .cfb", ""}, true, PlateModel},
    {"dg2cfb", "DG2CFB", "writes a model from digitized data", {".dg", ".cfb"}, true, ModelParts},
    {"conv2dg", "Conv2DG", "converts a text file to digitized data", {"*.txt", ".dg"}, true, None},
    {"renumber", "Renumber", "renumbers the points of digitized data", {".dg .ren", ""}, true, None},
    {"modlex", "Modlex", "edits models in a window", {"[*.cfb]", ""}, false, None},
};

constexpr Mode Modes[] = {
    {"interact", 'C', "creates the set-up of a new simulation", {".cfb", ".sim"}},
    {"average", 'C', "computes the average and its band", {"average.sss", "average.av"}},
    {"average", 'S', "takes a trial out of an average", {"*.pj average.sss", "average.sss average.av"}},
    {"skelvo", 'A', "converts another system's file to digitized data", {"*.3d", ".dg"}},
    {"fplate", 'M', "merges a second force file into a model", {".rf2 .cfb", ""}},
};

char lowerCase(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

} // namespace

std::span<const Program> allPrograms()
{
    return Programs;
}

std::span<const Mode> allModes()
{
    return Modes;
}

const Program *findProgram(std::string_view name)
{
    std::string lower(name);
    std::transform(lower.begin(), lower.end(), lower.begin(), lowerCase);
    const auto *const found = std::find_if(std::begin(Programs), std::end(Programs),
                                           [&](const Program &program) { return program.name == lower; });
    return found == std::end(Programs) ? nullptr : found;
}

const Mode *findMode(const Program &program, std::string_view letters)
{
    const auto *const found = std::find_if(std::begin(Modes), std::end(Modes), [&](const Mode &mode) {
        return mode.program == program.name && letters.find(mode.letter) != std::string_view::npos;
    });
    return found == std::end(Modes) ? nullptr : found;
}

} // namespace practice
