#include "views/printer_set_up.h"

#include <QPrinterInfo>
#include <QWidget>

#include <windows.h>

namespace views {

// The dialog of Qt would be the one that prints.
bool showPrinterSetUp(QWidget *owner)
{
    if (QPrinterInfo::availablePrinterNames().isEmpty())
        return false;
    PRINTDLGW request = {};
    request.lStructSize = sizeof request;
    // NOLINTNEXTLINE(performance-no-int-to-ptr): such is the system's handle
    request.hwndOwner = owner ? reinterpret_cast<HWND>(owner->winId()) : nullptr;
    request.Flags = PD_PRINTSETUP;
    ::PrintDlgW(&request);
    ::GlobalFree(request.hDevMode);
    ::GlobalFree(request.hDevNames);
    return true;
}

} // namespace views
