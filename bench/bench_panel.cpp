#include "bench_panel.h"

#include "shell/connect_rooms.h"

namespace bench {

platform::Answer SilentDialogs::message(const platform::MessageBox &box)
{
    return box.buttons == platform::Buttons::OKOnly || box.buttons == platform::Buttons::OKCancel
               ? platform::OK
               : platform::No;
}

std::optional<QString> SilentDialogs::input(const platform::InputBox &)
{
    return std::nullopt;
}

std::optional<QString> SilentDialogs::openFile(const platform::OpenFileRequest &)
{
    return std::nullopt;
}

std::optional<QString> SilentDialogs::saveFile(const platform::SaveFileRequest &)
{
    return std::nullopt;
}

std::optional<platform::Colour> SilentDialogs::chooseColour(platform::Colour)
{
    return std::nullopt;
}

bool SilentDialogs::setUpPrinter()
{
    return false;
}

BenchPanel::BenchPanel(const QString &settings) : settings_(settings)
{
    shell::connectRooms(panel_);
}

} // namespace bench
