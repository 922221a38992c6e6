#pragma once

#include "platform/dialogs.h"
#include "platform/host_paths.h"

class QWidget;

namespace views {

/// The desktop's own boxes.
class MessageBoxes : public platform::Dialogs
{
public:
    explicit MessageBoxes(platform::HostPaths &paths) : paths_(paths) {}

    platform::Answer message(const platform::MessageBox &box) override;
    std::optional<QString> openFile(const platform::OpenFileRequest &request) override;

private:
    platform::HostPaths &paths_;
};

} // namespace views
