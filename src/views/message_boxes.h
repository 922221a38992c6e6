#pragma once

#include "platform/dialogs.h"
#include "platform/host_paths.h"

class QFileDialog;

namespace views {

/// The desktop's own boxes.
class MessageBoxes : public platform::Dialogs
{
public:
    explicit MessageBoxes(platform::HostPaths &paths) : paths_(paths) {}

    platform::Answer message(const platform::MessageBox &box) override;
    std::optional<QString> input(const platform::InputBox &box) override;
    std::optional<QString> openFile(const platform::OpenFileRequest &request) override;
    std::optional<QString> saveFile(const platform::SaveFileRequest &request) override;
    std::optional<platform::Colour> chooseColour(platform::Colour initial) override;
    bool setUpPrinter() override;

private:
    void setFilters(QFileDialog &dialog, const QString &filter, int index) const;
    std::optional<QString> chosenIn(QFileDialog &dialog);

    platform::HostPaths &paths_;
};

} // namespace views
