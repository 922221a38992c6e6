#include "expected_programs.h"

#include <algorithm>

namespace practice_tests {

const std::vector<Expected> &expectedPrograms()
{
    using Names = std::vector<std::string>;
    const Names model{"walk1.cn", "walk1.cfb"};
    const Names moving{"walk1.km", "walk1.cfb"};

    // Program, title, arguments, needs, leaves, listing.
    static const std::vector<Expected> all{
        {"refila.exe", "Refila", {"WALK1.DG"}, {"walk1.dg"}, {"walk1.cn"}, "Refila.out"},
        {"errcheck.exe", "Errcheck", {"WALK1"}, model, {}, "Errcheck.out"},
        {"fourier.exe", "Fourier", {"WALK1"}, model, {"walk1.fr"}, "Fourier.out"},
        {"noise.exe", "Noise", {"WALK1"}, model, {"walk1.ns"}, "Noise.out"},
        {"kinemati.exe", "Kinemati", {"WALK1"}, model, {"walk1.km", "walk1.ks"}, "Kinemati.out"},
        {"kinemati.exe", "Kinemati", {"/D", "WALK1"}, model, {"walk1.km", "walk1.ks"}, "Kinemati.out"},
        {"momentum.exe", "Momentum", {"WALK1"}, moving, {"walk1.mm"}, "Momentum.out"},
        {"muscle.exe", "Muscle", {"WALK1"}, moving, {"walk1.mu"}, "Muscle.out"},
        {"energy.exe", "Energy", {"WALK1"}, moving, {"walk1.en"}, "Energy.out"},
        {"torque.exe", "Torque", {"WALK1"}, moving, {"walk1.tq"}, "Torque.out"},
        {"force.exe", "Force", {"WALK1"}, moving, {"walk1.fo", "walk1.jp"}, "Force.out"},
        {"powers.exe",
         "Powers",
         {"WALK1"},
         {"walk1.km", "walk1.cfb", "walk1.fo"},
         {"walk1.pj", "walk1.ps"},
         "Powers.out"},
        {"powers.exe",
         "Powers",
         {"WALK1"},
         {"walk1.km", "walk1.cfb", "walk1.jp"},
         {"walk1.pj", "walk1.ps"},
         "Powers.out"},
        {"interact.exe", "Interact", {"/C", "WALK1"}, {"walk1.cfb"}, {"walk1.sim"}, ""},
        {"simulate.exe", "Simulate", {"WALK1"}, {"walk1.cfb", "walk1.sim"}, {"walk1.sn"}, "Simulate.out"},
        {"options.exe", "Options", {"/C/R/M/F/G", "walk1"}, {"walk1.cfb"}, {}, ""},
        {"average.exe",
         "Average",
         {"/I", "/A", "/M", "/P", "/W", "WALK1.PJ"},
         {"walk1.pj"},
         {"average.av", "average.sss"},
         "Average.out"},
        {"average.exe", "Average", {"WALK1.KM"}, {"walk1.km"}, {"average.av", "average.sss"}, "Average.out"},
        {"average.exe", "Average", {"/C/5", "/R"}, {"average.sss"}, {"average.av"}, "Average.out"},
        {"average.exe", "Average", {"/CWALK1.PJ"}, {"average.sss"}, {"average.av"}, "Average.out"},
        {"graph.exe",
         "Graph",
         {"/C", "/D", "/A", "/Z", "WALK1", "RUN.GRA"},
         {"walk1.km"},
         {"walk1.plt"},
         "Graph.out"},
        {"graph.exe", "Graph", {"/M", "WALK1"}, {"walk1.pj"}, {"walk1.plt"}, "Graph.out"},
        {"grafow.exe", "GrafoW", {"/1", "walk1.plt"}, {"walk1.plt"}, {}, ""},
        {"grafow.exe", "GrafoW", {"/2"}, {}, {}, ""},
        {"grafod.exe", "GrafoD", {"/1", "walk1.plt"}, {"walk1.plt"}, {}, ""},
        {"acrospin.exe", "Acrospin", {"walk1.acd"}, {"walk1.acd"}, {}, ""},
        {"skelvo.exe", "Skelvo", {"/g", "WALK1.km"}, {"walk1.km"}, {}, ""},
        {"skelvo.exe", "Skelvo", {"/A", "KICK1.3d"}, {"kick1.3d"}, {"kick1.dg"}, ""},
        {"skelvo.exe", "Skelvo", {"/A", "PEAK1.cda"}, {"peak1.cda"}, {"peak1.dg"}, ""},
        {"skelvo98.exe", "Skelvo98", {"WALK1.dg"}, {"walk1.dg"}, {}, ""},
        {"skelvo98.exe", "Skelvo98", {";"}, {}, {}, ""},
        {"ondex2.exe", "Ondex2", {"WALK1.rf"}, {"walk1.rf"}, {}, ""},
        {"ondex2.exe", "Ondex2", {";"}, {}, {}, ""},
        {"forces.exe", "Forces", {"WALK1.rf"}, {"walk1.rf"}, {}, ""},
        {"forces.exe", "Forces", {";"}, {}, {}, ""},
        {"fpanalyz.exe", "FPAnalyz", {"/F/I", "WALK1.RF"}, {"walk1.rf"}, {}, "FPAnalyz.out"},
        {"fphist.exe", "FPHist", {"/A/C", "WALK1.RF"}, {"walk1.rf"}, {"walk1.plt"}, "FPHist.out"},
        {"fpsig.exe", "FPSig", {"/A/C/D/2", "WALK1.RF"}, {"walk1.rf"}, {"walk1.plt"}, "FPSig.out"},
        {"fplate.exe", "FPlate", {"/F/R", "WALK1"}, {"walk1.rf", "walk1.cfb"}, {}, "FPlate.out"},
        {"fplate.exe", "FPlate", {"/F/M/N", "WALK1.rf2"}, {"walk1.rf2", "walk1.cfb"}, {}, "FPlate.out"},
        {"dg2cfb.exe", "DG2CFB", {"/C/M/N/F/G/R", "WALK1"}, {"walk1.dg"}, {"walk1.cfb"}, "DG2CFB.out"},
        {"conv2dg.exe", "Conv2DG", {"WALK1.csv"}, {"walk1.csv"}, {"walk1.dg"}, "Conv2DG.out"},
        {"renumber.exe", "Renumber", {"WALK1.dg"}, {"walk1.dg", "walk1.ren"}, {}, "Renumber.out"},
        {"modlex.exe", "Modlex", {"WALK1.cfb"}, {"walk1.cfb"}, {}, ""},
        {"modlex.exe", "Modlex", {}, {}, {}, ""},
    };
    return all;
}

std::vector<std::string> programNames()
{
    std::vector<std::string> names;
    for (const Expected &expected : expectedPrograms())
        names.push_back(expected.program);
    names.erase(std::unique(names.begin(), names.end()), names.end());
    return names;
}

std::ostream &operator<<(std::ostream &stream, const Expected &expected)
{
    stream << expected.program;
    for (const std::string &argument : expected.arguments)
        stream << ' ' << argument;
    return stream;
}

} // namespace practice_tests
