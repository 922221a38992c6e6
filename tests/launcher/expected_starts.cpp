#include "expected_starts.h"

using platform::No;
using platform::OK;
using platform::Yes;

namespace launcher_tests {

// clang-format off
const std::vector<ExpectedStart> &packageStarts()
{
    // Steps, program, arguments; where they differ from the usual: directory, answers, chosen file. A program
    // that writes a listing on disk is followed by the offer to view it.
    static const std::vector<ExpectedStart> all{
        // The analysis programs.
        {{"choose &Programs > &Error Check"}, "package/errcheck.exe", {"WALK1"}, "data", {No}},
        {{"choose &Programs > Fourier &analysis"}, "package/fourier.exe", {"WALK1"}, "data", {No}},
        {{"choose &Programs > &Noise analysis"}, "package/noise.exe", {"WALK1"}, "data", {No}},
        {{"choose &Programs > &Kinematics"}, "package/kinemati.exe", {"WALK1"}, "data", {No}},
        {{"choose &Programs > &Momentum"}, "package/momentum.exe", {"WALK1"}, "data", {No}},
        {{"choose &Programs > M&uscle kinematics"}, "package/muscle.exe", {"WALK1"}, "data", {No}},
        {{"choose &Programs > &Work-energy"}, "package/energy.exe", {"WALK1"}, "data", {No}},
        {{"choose &Programs > &Torque"}, "package/torque.exe", {"WALK1"}, "data", {No}},
        {{"choose &Programs > &Force (inverse dynamics)"}, "package/force.exe", {"WALK1"}, "data", {No}},
        {{"choose &Programs > &Powers"}, "package/powers.exe", {"WALK1"}, "data", {No}},
        {{"choose &Programs > &Interact"}, "package/interact.exe", {"WALK1"}},
        {{"choose &Programs > &Simulate"}, "package/simulate.exe", {"WALK1"}, "data", {No}},
        {{"choose &Programs > Interact (&Create A New Simulation)"}, "package/interact.exe", {"/C", "WALK1"}},

        // Their switches.
        {{"choose &Settings > Pause after running DOS program", "choose &Programs > &Kinematics"},
         "package/kinemati.exe", {"/D", "WALK1"}, "data", {No}},
        {{"choose &Settings > Pause after running DOS program",
          "choose &Programs > Interact (&Create A New Simulation)"},
         "package/interact.exe", {"/C", "/D", "WALK1"}},
        {{"choose &Settings > &Listing device > &Screen", "choose &Programs > &Momentum"},
         "package/momentum.exe", {"/T", "WALK1"}},
        {{"choose &Settings > &Listing device > &Printer (PRN)", "choose &Programs > &Force (inverse dynamics)"},
         "package/force.exe", {"/L", "WALK1"}},
        {{"choose &Settings > &Listing device > &None", "choose &Programs > &Simulate"},
         "package/simulate.exe", {"/N", "WALK1"}},
        {{"choose &Settings > &Listing device > &Screen",
          "choose &Settings > Pause after running DOS program", "choose &Programs > Fourier &analysis"},
         "package/fourier.exe", {"/T", "/D", "WALK1"}},
        {{"choose &Settings > &Listing device > &Printer (PRN)",
          "choose &Settings > Pause after running DOS program",
          "choose &Programs > Interact (&Create A New Simulation)"},
         "package/interact.exe", {"/L", "/C", "/D", "WALK1"}},
        {{"choose &Settings > &Listing device > &None", "choose &Settings > &Reset",
          "choose &Programs > &Powers"},
         "package/powers.exe", {"WALK1"}, "data", {No}},
        {{"choose &Settings > Prompt to View Output", "choose &Programs > &Torque"},
         "package/torque.exe", {"WALK1"}},

        // Without a trial the items keep the states that they had.
        {{"look at &Programs", "open empty", "choose &Programs > &Momentum"},
         "package/momentum.exe", {}, "data/empty", {No, No}},

        // Options and help on any program.
        {{"choose &Programs > Control &Options"}, "package/options.exe", {"/C/R/M/F/G", "Walk1"}},
        {{"look at &Programs", "open empty", "choose &Programs > Control &Options"},
         "package/options.exe", {"/C/R/M/F/G"}, "data/empty", {No}},
        {{"choose &Help > Command line &help"}, "package/noise.exe", {"/?", "/HELP"}, "data", {},
         "package/noise.exe"},
        {{"choose &File > &Run a program"}, "package/muscle.exe", {}, "package", {}, "package/muscle.exe"},

        // Digitized data.
        {{"choose &Data > &Scale/Refine data (Refila)"}, "package/refila.exe", {"WALK1.DG"}, "data", {No}},
        {{"choose &Settings > &Listing device > &Screen", "choose &Data > &Scale/Refine data (Refila)"},
         "package/refila.exe", {"/T", "WALK1.DG"}},
        {{"choose &Settings > Pause after running DOS program", "choose &Data > &Scale/Refine data (Refila)"},
         "package/refila.exe", {"WALK1.DG"}, "data", {No}},
        {{"choose &Data > &Graph/Animate data"}, "package/skelvo.exe", {"WALK1.DG"}},
        {{"choose &Settings > &Listing device > &None", "choose &Data > &Graph/Animate data"},
         "package/skelvo.exe", {"WALK1.DG"}},
        {{"choose &Data > Re&number data"}, "package/renumber.exe", {"Walk1.dg"}},

        {{"open nameless", "choose &Data > &Scale/Refine data (Refila)"},
         "package/refila.exe", {".DG"}, "data/nameless", {No}},
        {{"open nameless", "choose &Data > Re&number data"}, "package/renumber.exe", {".dg"}, "data/nameless"},

        // Conversion.
        {{"choose &Data > &Convert data ... > &Peak Performance"}, "package/skelvo.exe", {"/A", "Walk1.cda"}},
        {{"choose &Data > &Convert data ... > ASCII &text file"}, "package/conv2dg.exe", {"Walk1.DG"}},
        {{"click walk2.1t in Data files", "choose &Data > &Convert data ... > ASCII &text file"},
         "package/conv2dg.exe", {"walk2.1t"}, "data", {OK}},
        {{"choose &Data > &Convert data ... > &Ariel Dynamics ... > 3&D"},
         "package/skelvo.exe", {"/A", "Walk1.3d"}},
        {{"choose &Data > &Convert data ... > &Ariel Dynamics ... > &1T"},
         "package/skelvo.exe", {"/A", "Walk1.1t"}},
        {{"choose &Data > &Convert data ... > &Ariel Dynamics ... > &2T"},
         "package/skelvo.exe", {"/A", "Walk1.2t"}},
        {{"choose &Data > &Convert data ... > &Ariel Dynamics ... > &3T"},
         "package/skelvo.exe", {"/A", "Walk1.3t"}},
        {{"choose &Data > &Convert data ... > &Ariel Dynamics ... > &4T"},
         "package/skelvo.exe", {"/A", "Walk1.4t"}},
        {{"choose &Data > &Convert data ... > &Ariel Dynamics ... > &5T"},
         "package/skelvo.exe", {"/A", "Walk1.5t"}},
        {{"choose &Data > &Convert data ... > &Ariel Dynamics ... > &6T"},
         "package/skelvo.exe", {"/A", "Walk1.6t"}},
        {{"choose &Data > &Convert data ... > &Ariel Dynamics ... > &7T"},
         "package/skelvo.exe", {"/A", "Walk1.7t"}},
        {{"choose &Data > &Convert data ... > &Ariel Dynamics ... > &8T"},
         "package/skelvo.exe", {"/A", "Walk1.8t"}},
        {{"choose &Data > &Convert data ... > &Ariel Dynamics ... > &9T"},
         "package/skelvo.exe", {"/A", "Walk1.9t"}},

        // Models.
        {{"choose &Model > &Copy data to model"}, "package/dg2cfb.exe", {"/C/M/N/F/G/R", "Walk1"}, "data", {Yes}},
        {{"choose &Model > Add &forces to model"}, "package/fplate.exe", {"/F/R", "Walk1"}},
        {{"choose &Model > &Merge second force to model"}, "package/fplate.exe", {"/F/M/N", "Walk1.rf2"}},
        {{"choose &Model > &Edit with CFB Editor"}, "package/modlex.exe", {}},
        {{"press .CFB &Editor"}, "package/modlex.exe", {"Walk1.cfb"}},
        {{"click walk3.dg in Data files", "press .CFB &Editor"}, "package/modlex.exe", {";"}},
        {{"open empty", "press .CFB &Editor"}, "package/modlex.exe", {";"}, "data/empty"},

        // Averaging.
        {{"click Walk1.pj in Binary files", "choose &Average ... > &Add trial to average"},
         "package/average.exe", {"WALK1.PJ"}, "data", {No}},
        {{"click walk2.km in Binary files", "choose &Settings > &Listing device > &Screen",
          "choose &Average ... > &Add trial to average"},
         "package/average.exe", {"/T", "WALK2.KM"}},
        {{"click Walk1.pj in Binary files", "choose &Average ... > &Subtract trial from average"},
         "package/average.exe", {"/S", "WALK1.PJ"}, "data", {No}},
        {{"click Walk1.pj in Binary files", "choose &Settings > &Listing device > &Screen",
          "choose &Average ... > &Subtract trial from average"},
         "package/average.exe", {"/T", "/S", "WALK1.PJ"}},
        // Its text is missing: the message, the question for a file, then the offer to view.
        {{"choose &Average ... > &Help on averaging"},
         "package/average.exe", {"WALK1.PJ"}, "data", {OK, Yes, No}},
        {{"choose &Average ... > &Program options"}, "package/average.exe", {"/?"}, "data", {No}},
        {{"choose &Settings > &Listing device > &Screen", "choose &Average ... > &Program options"},
         "package/average.exe", {"/?"}},
        {{"click Walk1.pj in Binary files", "choose &Average ... > &New average", "press &Defaults",
          "press O&K"},
         "package/average.exe", {"/I", "/A", "/M", "/P", "/W", "WALK1.PJ"}, "data", {No}},
        {{"choose &Settings > &Listing device > &Screen", "click Walk1.pj in Binary files",
          "choose &Average ... > &New average", "press &Defaults",
          "tick &Echo raw and normalized data to output file", "press O&K"},
         "package/average.exe", {"/T", "/I", "/A", "/M", "/P", "/E", "/W", "WALK1.PJ"}},
        {{"click Walk1.pj in Binary files", "choose &Average ... > &New average",
          "clear Normalize &All records (don't prompt)", "clear Normalize timebase to &Percentages",
          "clear Normalize amplitudes to body &Mass", "clear &Wait (pause program) after each added file",
          "press O&K"},
         "package/average.exe", {"/I", "WALK1.PJ"}, "data", {No}},
        {{"choose &Average ... > Compute or &Recompute averages", "press &Defaults",
          "tick Print results in &Row-wise fashion", "press Compute &Ensemble Averages"},
         "package/average.exe", {"/C/5", "/R"}, "data", {No}},
        {{"choose &Settings > &Listing device > &Screen",
          "choose &Average ... > Compute or &Recompute averages", "tick 99% = s.d. x 2.57",
          "press Compute &Ensemble Averages"},
         "package/average.exe", {"/T", "/C/9"}},
        {{"choose &Average ... > Compute or &Recompute averages", "tick 1 x s.d.",
          "press Compute &Ensemble Averages"},
         "package/average.exe", {"/C/1"}, "data", {No}},
        {{"choose &Average ... > Compute or &Recompute averages", "click Walk1.pj in Binary files",
          "tick 2 x s.d.", "press Compute &Ensemble Averages"},
         "package/average.exe", {"/C/2", "WALK1.PJ"}, "data", {No}},
        {{"choose &Average ... > Compute or &Recompute averages", "click Walk1.pj in Binary files",
          "tick other", "press Compute &Ensemble Averages"},
         "package/average.exe", {"/CWALK1.PJ"}, "data", {No}},
        {{"choose &Average ... > Compute or &Recompute averages", "click Walk1.pj in Binary files",
          "tick other", "tick Print results in &Row-wise fashion", "press Compute &Ensemble Averages"},
         "package/average.exe", {"/C/R", "WALK1.PJ"}, "data", {No}},

        // Animation.
        {{"choose &Animate > &Digitized data (.DG)"}, "package/skelvo.exe", {"Walk1.dg"}},
        {{"choose &Animate > &Refined data (.CN)"}, "package/skelvo.exe", {"Walk1.cn"}},
        {{"choose &Animate > &Filtered data (.KM)"}, "package/skelvo.exe", {"/g", "Walk1.km"}},
        {{"click walk2.1t in Data files", "choose &Animate > &Filtered data (.KM)"},
         "package/skelvo.exe", {"walk2.km"}, "data", {OK}},
        {{"choose &Animate > &Simulated data (.SN)"}, "package/skelvo.exe", {"Walk1.sn"}},

        // Companions.
        {{"press Force Plate &Analysis"}, "package/forces.exe", {"Walk1.rf"}},
        {{"open empty", "press Force Plate &Analysis"}, "package/forces.exe", {";"}, "data/empty"},
        {{"press &Skelvo"}, "package/skelvo98.exe", {"Walk1.dg"}},
        {{"open empty", "press &Skelvo"}, "package/skelvo98.exe", {";"}, "data/empty"},
        {{"press Ond&ex2"}, "package/ondex2.exe", {"Walk1.rf"}, "data", {Yes}},
        {{"press Ond&ex2"}, "package/ondex2.exe", {";"}, "data", {No}},
        {{"click walk3.dg in Data files", "press Ond&ex2"}, "package/ondex2.exe", {";"}, "data", {OK}},
        {{"open empty", "press Ond&ex2"}, "package/ondex2.exe", {";"}, "data/empty", {OK}},
        {{"choose &View > &Forces ... > &Analyze"}, "package/fpanalyz.exe", {"/F/I", "WALK1.RF"}},
        {{"choose &View > &Forces ... > &Histories"}, "package/fphist.exe", {"/A/C", "WALK1.RF"}},
        {{"choose &View > &Forces ... > &Vectors"}, "package/fpsig.exe", {"/A/C/D/2", "WALK1.RF"}},
        {{"choose &View > &Forces ... > &3D vectors"}, "package/fpsig.exe", {"/A/C/D/3", "WALK1.RF"}},
        {{"choose &Settings > &Listing device > &Screen",
          "choose &Settings > Pause after running DOS program", "choose &View > &Forces ... > &Analyze"},
         "package/fpanalyz.exe", {"/F/I", "WALK1.RF"}},

        // Creating graphs.
        {{"choose &Graph > &Create graph(s)"}, "package/graph.exe", {"/C", "/A", "/Z", "WALK1", "RUN.GRA"}},
        {{"press &Create Graph(s)"}, "package/graph.exe", {"/C", "/A", "/Z", "WALK1", "RUN.GRA"}},
        {{"press &Select Type of  Graph", "click Stick.gra in Graph Types (.GRA)", "press &Create Graph(s)"},
         "package/graph.exe", {"/C", "/A", "/Z", "WALK1", "STICK.GRA"}},
        {{"choose &Graph > &Options > &Black on White (for WP or Word)", "choose &Graph > &Create graph(s)"},
         "package/graph.exe", {"/M", "/A", "/Z", "WALK1", "RUN.GRA"}},
        {{"choose &Graph > &Options > &White on Black (for PowerPoint)", "choose &Graph > &Create graph(s)"},
         "package/graph.exe", {"/A", "/Z", "WALK1", "RUN.GRA"}},
        {{"choose &Graph > &Options > &Permit batch mode",
          "choose &Graph > &Options > &Include debugging information in output file",
          "choose &Graph > &Create graph(s)"},
         "package/graph.exe", {"/C", "/D", "/B", "/A", "/Z", "WALK1", "RUN.GRA"}},
        {{"choose &Graph > &Options > &Permit batch mode",
          "choose &Graph > &Options > &Black on White (for WP or Word)",
          "choose &Graph > &Options > &Include debugging information in output file",
          "choose &Settings > &Listing device > &Printer (PRN)",
          "choose &Settings > &Graphics device > &Screen (default)", "choose &Graph > &Create graph(s)"},
         "package/graph.exe", {"/M", "/D", "/B", "/L", "/A", "WALK1", "RUN.GRA"}},
        {{"choose &Settings > &Listing device > &Screen", "choose &Graph > &Create graph(s)"},
         "package/graph.exe", {"/C", "/T", "WALK1", "RUN.GRA"}},
        {{"choose &Settings > &Graphics device > &Plotter", "choose &Graph > &Create graph(s)"},
         "package/graph.exe", {"/C", "WALK1", "RUN.GRA"}},
        {{"choose &Settings > &Reset", "choose &Graph > &Create graph(s)"},
         "package/graph.exe", {"/C", "/A", "WALK1", "RUN.GRA"}},

        // Showing and printing graphs.
        {{"double-click Run1.PLT in Graphs (.PLT)"}, "package/grafow.exe", {"/1", "Run1.PLT"}},
        {{"double-click Run1.hpg in Graphs (.PLT)"}, "package/grafow.exe", {"/1", "Run1.hpg"}},
        {{"choose &Graph > &Options > &Full-screen preview (GrafoD)",
          "double-click Run1.PLT in Graphs (.PLT)"},
         "package/grafod.exe", {"/1", "Run1.PLT"}},
        {{"double-click Run1.acd in Graphs (.PLT)"}, "package/acrospin.exe", {"Run1.acd"}},
        {{"choose &Graph > &Options > &Full-screen preview (GrafoD)",
          "double-click Run1.acd in Graphs (.PLT)"},
         "package/acrospin.exe", {"Run1.acd"}},
        {{"click Run1.PLT in Graphs (.PLT)", "choose &Graph > &Display graph (GrafoW)"},
         "package/grafow.exe", {"Run1.PLT"}},
        {{"click Run1.PLT in Graphs (.PLT)", "choose &Graph > &Full-screen display (GrafoD)"},
         "package/grafod.exe", {"Run1.PLT"}},
        {{"choose &Graph > &Run GrafoW"}, "package/grafow.exe", {}},
        {{"open empty", "choose &Graph > &Run GrafoW"}, "package/grafow.exe", {}, "data/empty"},
        {{"click Run1.PLT in Graphs (.PLT)",
          "choose &Graph > &Print graph ... > to &Laserjet 4/5/6 && Lexmark (2)"},
         "package/grafow.exe", {"/2", "Run1.PLT"}},
        {{"click Run1.PLT in Graphs (.PLT)",
          "choose &Graph > &Print graph ... > to &Colour HP Deskjet (3)"},
         "package/grafow.exe", {"/3", "Run1.PLT"}},
        {{"click Run1.PLT in Graphs (.PLT)",
          "choose &Graph > &Print graph ... > to HP &Laserjet III (4)"},
         "package/grafow.exe", {"/4", "Run1.PLT"}},
        {{"click Run1.PLT in Graphs (.PLT)",
          "choose &Graph > &Print graph ... > to &B&&W HP Deskjet (5)"},
         "package/grafow.exe", {"/5", "Run1.PLT"}},
        {{"click Run1.PLT in Graphs (.PLT)", "choose &Graph > &Print graph ... > &Select printer"},
         "package/grafow.exe", {}},
        {{"choose &View > &Plot files"}, "package/grafow.exe", {"panel:data/empty/Stick 1.plt"}, "data", {},
         "data/empty/Stick 1.plt"},
    };
    return all;
}

const std::vector<ExpectedStart> &desktopStarts()
{
    static const std::vector<ExpectedStart> all{
        // Accessories.
        {{"choose &File > &Calculator"}, "bin/gnome-calculator", {}},
        {{"choose &File > &Explorer"}, "bin/nautilus", {}},
        {{"choose &File > Explore current directory"}, "bin/nautilus", {"host:data"}},
        {{"open empty", "choose &File > Explore current directory"},
         "bin/nautilus", {"host:data/empty"}, "data/empty"},
        {{"choose &File > &Notepad"}, "bin/gedit", {}},
        {{"open empty", "choose &File > &Notepad"}, "bin/gedit", {}, "data/empty"},
        {{"choose &Help > Windows &Help"}, "bin/yelp", {}},
        {{"press System Information"}, "bin/hardinfo", {}},

        // The text editor, with the file as the disk spells it.
        {{"choose &Data > &View/Edit data with Notepad"}, "bin/gedit", {"host:data/Walk1.DG"}},
        {{"choose &Model > &View/Edit model with Notepad"}, "bin/gedit", {"host:data/WALK1.CFB"}},
        {{"open empty", "choose &Model > &Select model (.CFB)"},
         "bin/gedit", {"host:data/empty/.cfb"}, "data/empty", {Yes}},
        {{"open empty", "look at &Programs"}, "bin/gedit", {"host:data/empty/.cfb"}, "data/empty", {Yes}},
        {{"open nameless", "choose &Data > &View/Edit data with Notepad"},
         "bin/gedit", {"host:data/nameless/.dg"}, "data/nameless"},
        {{"press &Edit .GRA File"}, "bin/gedit", {"host:package/graphs/RUN.GRA"}},
        {{"press &Select Type of  Graph", "click Stick.gra in Graph Types (.GRA)", "press &Edit .GRA File"},
         "bin/gedit", {"host:package/graphs/Stick.gra"}},
        {{"choose &View > &Output files"}, "bin/gedit", {"host:data/Kinemati.OUT"}, "data", {},
         "data/Kinemati.OUT"},
        {{"choose &File > &Print"}, "bin/gedit", {"host:data/Walk1.DG"}, "data", {OK}},
        {{"click Run1.PLT in Graphs (.PLT)", "choose &File > &Print"},
         "bin/gedit", {"host:data/Run1.PLT"}, "data", {OK}},
        // Not a text that the panel's own viewer can show.
        {{"choose &Help > Over&view"}, "bin/gedit", {"host:package/Overview.TXT"}},

        // The text viewer.
        {{"double-click Kinemati.OUT in Output files"}, "bin/gedit", {"host:data/Kinemati.OUT"}},
        {{"double-click Walk1.dr in Binary files"}, "bin/gedit", {"host:data/Walk1.dr"}, "data", {OK}},
        {{"double-click Walk1.sim in Binary files"}, "bin/gedit", {"host:data/Walk1.sim"}, "data", {OK}},
        {{"choose &Settings > &Text viewer > &Notepad+", "double-click Kinemati.OUT in Output files"},
         "package/notepad.exe", {"host:data/Kinemati.OUT"}},
        {{"choose &Settings > &Text viewer > &Notepad+", "choose &Settings > &Text viewer > &Windows Notepad",
          "double-click Kinemati.OUT in Output files"},
         "bin/gedit", {"host:data/Kinemati.OUT"}},
        {{"choose &Settings > &Text viewer > &Select viewer (Wordpad etc.)",
          "double-click Walk1.dr in Binary files"},
         "own/my viewer", {"host:data/Walk1.dr"}, "data", {OK}, "own/my viewer"},
        {{"choose &Settings > &Text viewer > &Notepad+", "choose &View > &Output files"},
         "bin/gedit", {"host:data/Kinemati.OUT"}, "data", {}, "data/Kinemati.OUT"},

        // The media player.
        {{"choose &View > &AVI && MPEG files"}, "bin/totem", {"host:data/empty/Jump 1.AVI"}, "data", {},
         "data/empty/Jump 1.AVI"},

        // What opens documents and addresses.
        {{"choose &Manuals > &Kinovra User's Manual"},
         "bin/xdg-open", {"host:package/Manuals/Kinovra.PDF"}, "package/Manuals"},
        {{"choose &Manuals > &Control file example"},
         "bin/xdg-open", {"host:package/Manuals/cfbfile.pdf"}, "package/Manuals"},
        {{"choose &Manuals > &Graph User's Manual"},
         "bin/xdg-open", {"host:package/Manuals/graph.pdf"}, "package/Manuals"},
        {{"choose &Manuals > &Skelvo User's Manual"},
         "bin/xdg-open", {"host:package/Manuals/skelvo.pdf"}, "package/Manuals"},
        {{"choose &Manuals > Kinovra &Quick Reference Guide"},
         "bin/xdg-open", {"host:package/Manuals/kv_win.pdf"}, "package/Manuals"},
        {{"choose &Manuals > Ondex&1 User's Manual"},
         "bin/xdg-open", {"host:package/Manuals/ondex.pdf"}, "package/Manuals"},
        {{"choose &Manuals > Ondex&2 Quick Reference Guide"},
         "bin/xdg-open", {"host:package/Manuals/ox2_qrg.pdf"}, "package/Manuals"},
        {{"choose &Manuals > &Simulate User's Manual"},
         "bin/xdg-open", {"host:package/Manuals/simulate.pdf"}, "package/Manuals"},
        {{"choose &Manuals > Kinovra Channel &Ordering"},
         "bin/xdg-open", {"host:package/Manuals/binaries.pdf"}, "package/Manuals"},
        {{"choose &Manuals > Select &A Manual"},
         "bin/xdg-open", {"host:package/Manuals"}, "package/Manuals"},
        {{"press &Guide"}, "bin/xdg-open", {"host:package/Manuals/kv_win.pdf"}, "package/Manuals"},
        {{"press Man&ual"}, "bin/xdg-open", {"host:package/Manuals/Kinovra.PDF"}, "package/Manuals"},
        {{"choose &Help > &Website"}, "bin/xdg-open", {"https://example.org/kinovra/kinovra.htm"}, "/"},
        {{"press &Website"}, "bin/xdg-open", {"https://example.org/kinovra/kinovra.htm"}, "/"},
        {{"choose &Help > &Update from Internet"},
         "bin/xdg-open", {"https://example.org/kinovra/KVwin98.exe"}, "package", {Yes, No}},
        {{"press &Update"},
         "bin/xdg-open", {"https://example.org/kinovra/KVwin98.exe"}, "package", {OK, No}},
    };
    return all;
}
// clang-format on

std::ostream &operator<<(std::ostream &stream, const ExpectedStart &expected)
{
    for (const char *step : expected.steps)
        stream << step << "; ";
    return stream << "so " << expected.program.constData() << " starts";
}

} // namespace launcher_tests
