#include "shell/menu_tree.h"

namespace shell {

namespace {

using controls::MenuItem;
using Form = frmKinovra;

MenuRow single(int depth, MenuItem Form::*item, const char *name, const char *caption)
{
    return {depth, QLatin1String(name), -1, QLatin1String(caption),
            [item](Form &frm) -> MenuItem & { return frm.*item; }};
}

MenuRow menu(int depth, MenuItem Form::*item, const char *name, const char *caption)
{
    return single(depth, item, name, caption);
}

template <std::size_t N>
MenuRow element(int depth, std::array<MenuItem, N> Form::*array, std::size_t index, const char *name,
                const char *caption)
{
    return {depth, QLatin1String(name), static_cast<int>(index), QLatin1String(caption),
            [array, index](Form &frm) -> MenuItem & { return (frm.*array)[index]; }};
}

MenuRow separator(int depth)
{
    return {depth, QString(), -1, QString(), nullptr};
}

// "currect" is the item's own spelling.
// clang-format off
const std::vector<MenuRow> &table()
{
    static const std::vector<MenuRow> rows{
        menu(0, &Form::mnuFiles, "mnuFiles", "&File"),
        element(1, &Form::mnuOpen, 0, "mnuOpen", "&Open a directory"),
        element(1, &Form::mnuOpen, 1, "mnuOpen", "&Make a new subdirectory"),
        element(1, &Form::mnuOpen, 2, "mnuOpen", "&Remove currect subdirectory"),
        element(1, &Form::mnuOpen, 3, "mnuOpen", "Explore current directory"),
        separator(1),
        menu(1, &Form::mnuUsers, "mnuUsers", "&User level..."),
        element(2, &Form::mnuUser, 0, "mnuUser", "Novice"),
        element(2, &Form::mnuUser, 1, "mnuUser", "Expert"),
        separator(1),
        element(1, &Form::mnuDOS, 0, "mnuDOS", "&Calculator"),
        element(1, &Form::mnuDOS, 1, "mnuDOS", "&DOS prompt"),
        element(1, &Form::mnuDOS, 2, "mnuDOS", "&Explorer"),
        element(1, &Form::mnuDOS, 3, "mnuDOS", "&Notepad"),
        single(1, &Form::mnuRun, "mnuRun", "&Run a program"),
        separator(1),
        single(1, &Form::mnuPrint, "mnuPrint", "&Print"),
        single(1, &Form::mnuPrintSetup, "mnuPrintSetup", "Printer Set&up"),
        separator(1),
        single(1, &Form::mnuExit, "mnuExit", "&Exit"),

        menu(0, &Form::mnuDatafiles, "mnuDatafiles", "&Data"),
        element(1, &Form::mnuDatafile, 0, "mnuDatafile", "&Select digitized data"),
        element(1, &Form::mnuDatafile, 1, "mnuDatafile", "&Scale/Refine data (Refila)"),
        element(1, &Form::mnuDatafile, 2, "mnuDatafile", "&Graph/Animate data"),
        element(1, &Form::mnuDatafile, 3, "mnuDatafile", "&View/Edit data with Notepad"),
        element(1, &Form::mnuDatafile, 4, "mnuDatafile", "Re&number data"),
        separator(1),
        menu(1, &Form::mnuConverts, "mnuConverts", "&Convert data ..."),
        menu(2, &Form::mnuAriel, "mnuAriel", "&Ariel Dynamics ..."),
        element(3, &Form::mnuArielType, 0, "mnuArielType", "3&D"),
        element(3, &Form::mnuArielType, 1, "mnuArielType", "&1T"),
        element(3, &Form::mnuArielType, 2, "mnuArielType", "&2T"),
        element(3, &Form::mnuArielType, 3, "mnuArielType", "&3T"),
        element(3, &Form::mnuArielType, 4, "mnuArielType", "&4T"),
        element(3, &Form::mnuArielType, 5, "mnuArielType", "&5T"),
        element(3, &Form::mnuArielType, 6, "mnuArielType", "&6T"),
        element(3, &Form::mnuArielType, 7, "mnuArielType", "&7T"),
        element(3, &Form::mnuArielType, 8, "mnuArielType", "&8T"),
        element(3, &Form::mnuArielType, 9, "mnuArielType", "&9T"),
        element(2, &Form::mnuConvert, 0, "mnuConvert", "&Elite"),
        element(2, &Form::mnuConvert, 1, "mnuConvert", "&Motion Analysis"),
        element(2, &Form::mnuConvert, 2, "mnuConvert", "&Northern Digital"),
        element(2, &Form::mnuConvert, 3, "mnuConvert", "&Peak Performance"),
        element(2, &Form::mnuConvert, 4, "mnuConvert", "&Qualisys"),
        element(2, &Form::mnuConvert, 5, "mnuConvert", "ASCII &text file"),
        element(2, &Form::mnuConvert, 6, "mnuConvert", "&Vicon"),

        menu(0, &Form::mnuModels, "mnuModels", "&Model"),
        element(1, &Form::mnuModel, 0, "mnuModel", "&Select model (.CFB)"),
        element(1, &Form::mnuModel, 1, "mnuModel", "&Copy data to model"),
        element(1, &Form::mnuModel, 2, "mnuModel", "Add &forces to model"),
        element(1, &Form::mnuModel, 3, "mnuModel", "&Edit with CFB Editor"),
        element(1, &Form::mnuModel, 4, "mnuModel", "&View/Edit model with Notepad"),
        element(1, &Form::mnuModel, 5, "mnuModel", "&Merge second force to model"),
        separator(1),
        single(1, &Form::mnuNewModel, "mnuNewModel", "&New model"),

        menu(0, &Form::mnuProgs, "mnuProgs", "&Programs"),
        element(1, &Form::mnuProg, 0, "mnuProg", "&Error Check"),
        element(1, &Form::mnuProg, 1, "mnuProg", "Fourier &analysis"),
        element(1, &Form::mnuProg, 2, "mnuProg", "&Noise analysis"),
        element(1, &Form::mnuProg, 3, "mnuProg", "&Kinematics"),
        element(1, &Form::mnuProg, 4, "mnuProg", "&Momentum"),
        element(1, &Form::mnuProg, 5, "mnuProg", "M&uscle kinematics"),
        element(1, &Form::mnuProg, 6, "mnuProg", "&Work-energy"),
        element(1, &Form::mnuProg, 7, "mnuProg", "&Torque"),
        element(1, &Form::mnuProg, 8, "mnuProg", "&Force (inverse dynamics)"),
        element(1, &Form::mnuProg, 9, "mnuProg", "&Powers"),
        element(1, &Form::mnuProg, 10, "mnuProg", "&Interact"),
        element(1, &Form::mnuProg, 11, "mnuProg", "&Simulate"),
        element(1, &Form::mnuProg, 12, "mnuProg", "Interact (&Create A New Simulation)"),
        separator(1),
        single(1, &Form::mnuOptions, "mnuOptions", "Control &Options"),

        menu(0, &Form::mnuAverages, "mnuAverages", "&Average ..."),
        element(1, &Form::mnuAverage, 0, "mnuAverage", "&New average"),
        element(1, &Form::mnuAverage, 1, "mnuAverage", "&Add trial to average"),
        element(1, &Form::mnuAverage, 2, "mnuAverage", "Compute or &Recompute averages"),
        element(1, &Form::mnuAverage, 3, "mnuAverage", "&Subtract trial from average"),
        element(1, &Form::mnuAverage, 4, "mnuAverage", "&Help on averaging"),
        element(1, &Form::mnuAverage, 5, "mnuAverage", "&Program options"),

        menu(0, &Form::mnuImages, "mnuImages", "&Animate"),
        element(1, &Form::mnuSkelvo, 0, "mnuSkelvo", "&Digitized data (.DG)"),
        element(1, &Form::mnuSkelvo, 1, "mnuSkelvo", "&Refined data (.CN)"),
        element(1, &Form::mnuSkelvo, 2, "mnuSkelvo", "&Filtered data (.KM)"),
        element(1, &Form::mnuSkelvo, 3, "mnuSkelvo", "&Simulated data (.SN)"),

        menu(0, &Form::mnuGraphs, "mnuGraphs", "&Graph"),
        element(1, &Form::mnuGraph, 0, "mnuGraph", "Select &binary file"),
        element(1, &Form::mnuGraph, 1, "mnuGraph", "Select &type of graph"),
        element(1, &Form::mnuGraph, 2, "mnuGraph", "&Create graph(s)"),
        element(1, &Form::mnuGraph, 3, "mnuGraph", "&Display graph (GrafoW)"),
        element(1, &Form::mnuGraph, 4, "mnuGraph", "&Full-screen display (GrafoD)"),
        element(1, &Form::mnuGraph, 5, "mnuGraph", "&Run GrafoW"),
        element(1, &Form::mnuGraph, 6, "mnuGraph", "&Options"),
        element(2, &Form::mnuGraphOptions, 0, "mnuGraphOptions", "&Black on White (for WP or Word)"),
        element(2, &Form::mnuGraphOptions, 1, "mnuGraphOptions", "&White on Black (for PowerPoint)"),
        element(2, &Form::mnuGraphOptions, 2, "mnuGraphOptions", "&Full-screen preview (GrafoD)"),
        element(2, &Form::mnuGraphOptions, 3, "mnuGraphOptions", "&Include debugging information in output file"),
        element(2, &Form::mnuGraphOptions, 4, "mnuGraphOptions", "&Permit batch mode"),
        element(2, &Form::mnuGraphOptions, 5, "mnuGraphOptions", "&Reset defaults"),
        menu(1, &Form::mnuGraphPrints, "mnuGraphPrints", "&Print graph ..."),
        element(2, &Form::mnuGraphPrint, 0, "mnuGraphPrint", "to &Laserjet 4/5/6 && Lexmark (2)"),
        element(2, &Form::mnuGraphPrint, 1, "mnuGraphPrint", "to &Colour HP Deskjet (3)"),
        element(2, &Form::mnuGraphPrint, 2, "mnuGraphPrint", "to HP &Laserjet III (4)"),
        element(2, &Form::mnuGraphPrint, 3, "mnuGraphPrint", "to &B&&W HP Deskjet (5)"),
        element(2, &Form::mnuGraphPrint, 4, "mnuGraphPrint", "&Select printer"),

        menu(0, &Form::mnuViews, "mnuViews", "&View"),
        menu(1, &Form::mnuForces, "mnuForces", "&Forces ..."),
        element(2, &Form::mnuForce, 0, "mnuForce", "&Analyze"),
        element(2, &Form::mnuForce, 1, "mnuForce", "&Histories"),
        element(2, &Form::mnuForce, 2, "mnuForce", "&Vectors"),
        element(2, &Form::mnuForce, 3, "mnuForce", "&3D vectors"),
        separator(1),
        element(1, &Form::mnuView, 0, "mnuView", "&Binary output files"),
        element(1, &Form::mnuView, 1, "mnuView", "&Plot files"),
        element(1, &Form::mnuView, 2, "mnuView", "&GRAph files"),
        element(1, &Form::mnuView, 3, "mnuView", "&Output files"),
        element(1, &Form::mnuView, 4, "mnuView", "&AVI && MPEG files"),

        menu(0, &Form::mnuSettings, "mnuSettings", "&Settings  "),
        single(1, &Form::mnuReset, "mnuReset", "&Reset"),
        menu(1, &Form::mnuOutDev, "mnuOutDev", "&Listing device"),
        element(2, &Form::mnuListing, 0, "mnuListing", "&Disk file (default)"),
        element(2, &Form::mnuListing, 1, "mnuListing", "&Screen"),
        element(2, &Form::mnuListing, 2, "mnuListing", "&Printer (PRN)"),
        element(2, &Form::mnuListing, 3, "mnuListing", "&None"),
        menu(1, &Form::mnuOutGraphs, "mnuOutGraphs", "&Graphics device"),
        element(2, &Form::mnuGraphics, 0, "mnuGraphics", "&Screen (default)"),
        element(2, &Form::mnuGraphics, 1, "mnuGraphics", "&Graphics printer"),
        element(2, &Form::mnuGraphics, 2, "mnuGraphics", "&Plotter"),
        element(2, &Form::mnuGraphics, 3, "mnuGraphics", "&Disk file"),
        menu(1, &Form::mnuTextViewers, "mnuTextViewers", "&Text viewer"),
        element(2, &Form::mnuTextViewer, 0, "mnuTextViewer", "&Notepad+"),
        element(2, &Form::mnuTextViewer, 1, "mnuTextViewer", "&Windows Notepad"),
        element(2, &Form::mnuTextViewer, 2, "mnuTextViewer", "&Select viewer (Wordpad etc.)"),
        single(1, &Form::mnuPause, "mnuPause", "Pause after running DOS program"),
        single(1, &Form::mnuPrompt, "mnuPrompt", "Prompt to View Output"),

        menu(0, &Form::mnuManuals, "mnuManuals", "&Manuals"),
        element(1, &Form::mnuManual, 0, "mnuManual", "&Kinovra User's Manual"),
        element(1, &Form::mnuManual, 1, "mnuManual", "&Control file example"),
        element(1, &Form::mnuManual, 2, "mnuManual", "&Graph User's Manual"),
        element(1, &Form::mnuManual, 3, "mnuManual", "&Skelvo User's Manual"),
        element(1, &Form::mnuManual, 4, "mnuManual", "Kinovra &Quick Reference Guide"),
        element(1, &Form::mnuManual, 5, "mnuManual", "Ondex&1 User's Manual"),
        element(1, &Form::mnuManual, 6, "mnuManual", "Ondex&2 Quick Reference Guide"),
        element(1, &Form::mnuManual, 7, "mnuManual", "&Simulate User's Manual"),
        element(1, &Form::mnuManual, 8, "mnuManual", "Kinovra Channel &Ordering "),
        element(1, &Form::mnuManual, 9, "mnuManual", "Select &A Manual"),

        menu(0, &Form::mnuHelp, "mnuHelp", "&Help"),
        element(1, &Form::mnuHelpItem, 0, "mnuHelpItem", "Over&view"),
        element(1, &Form::mnuHelpItem, 1, "mnuHelpItem", "&Average (ensemble)"),
        element(1, &Form::mnuHelpItem, 2, "mnuHelpItem", "&Ondex"),
        element(1, &Form::mnuHelpItem, 3, "mnuHelpItem", "&Refila"),
        element(1, &Form::mnuHelpItem, 4, "mnuHelpItem", "&DG file format"),
        element(1, &Form::mnuHelpItem, 5, "mnuHelpItem", "&Energy"),
        element(1, &Form::mnuHelpItem, 6, "mnuHelpItem", "&Force (inverse dynamics)"),
        element(1, &Form::mnuHelpItem, 7, "mnuHelpItem", "&Ground reactions"),
        element(1, &Form::mnuHelpItem, 8, "mnuHelpItem", "&Skelvo"),
        element(1, &Form::mnuHelpItem, 9, "mnuHelpItem", "&Kinematics"),
        element(1, &Form::mnuHelpItem, 10, "mnuHelpItem", "Musc&le"),
        element(1, &Form::mnuHelpItem, 11, "mnuHelpItem", "&Momentum"),
        element(1, &Form::mnuHelpItem, 12, "mnuHelpItem", "&Options"),
        element(1, &Form::mnuHelpItem, 13, "mnuHelpItem", "&Powers"),
        element(1, &Form::mnuHelpItem, 14, "mnuHelpItem", "Installation &Readme"),
        element(1, &Form::mnuHelpItem, 15, "mnuHelpItem", "&Simulate"),
        element(1, &Form::mnuHelpItem, 16, "mnuHelpItem", "&Torque"),
        element(1, &Form::mnuHelpItem, 17, "mnuHelpItem", "&Updates"),
        element(1, &Form::mnuHelpItem, 18, "mnuHelpItem", "&Work"),
        separator(1),
        single(1, &Form::mnuProgHelp, "mnuProgHelp", "Command line &help"),
        separator(1),
        element(1, &Form::mnuAbout, 0, "mnuAbout", "&About Kinovra for Windows"),
        element(1, &Form::mnuAbout, 1, "mnuAbout", "Windows &Help"),
        element(1, &Form::mnuAbout, 2, "mnuAbout", "&Update from Internet"),
        element(1, &Form::mnuAbout, 3, "mnuAbout", "&Website"),
    };
    return rows;
}
// clang-format on

} // namespace

const std::vector<MenuRow> &menuTree()
{
    return table();
}

} // namespace shell
