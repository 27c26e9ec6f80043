#include "catalog/browser_layout.h"

namespace nerida {

const FormLayout browserLayout{"frmBrowser", "Zephra Catalog", FormFrame::dialog, {8700}, {6600}, {}};

}  // namespace nerida
