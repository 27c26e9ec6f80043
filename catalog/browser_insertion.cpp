// From a hit to the preview, and from there into the embedded object.
#include "catalog/frm_browser.h"
#include "catalog/model_library.h"
#include "platform/value.h"

namespace nerida {

void frmBrowser::lstModels_ItemClick(int index) {
  handleHere([this, index] { SelectItem(hitList().item(index)); });
}

void frmBrowser::SelectItem(const ListItem& item) {
  handleWith([&](const Error&) { messages.show("Zephra was unable to load model #" + item.tag, catalogTitle); },
             [&] {
               if (item.text == zephBrowser().modelName()) return;  // it is shown already
               const std::string path = BuildModelPath(paths, messages, toInt32(item.tag));
               if (path.empty()) throw Error(error::badFileName);  // told already; there is no place to look at
               if (services.files.firstFile(path).empty()) {
                 messages.show("Zephra cannot find the file " + path +
                                   ".  Please make sure that you have Zephra installed correctly.",
                               catalogTitle);
                 return;
               }
               Preview& preview = zephBrowser();
               preview.setModelFile(path);
               zephBrowser().setModelName(item.text);
               loadedWindow().label("lblModel").setCaption(item.text + " ");
               zephBrowser().load();
             });
}

void frmBrowser::InsertModel() {
  handleAs("Error while inserting model ", toolbarTitle, [this] {
    if (zephBrowser().modelFile().empty()) return;
    model.setModelName(zephBrowser().modelName());
    model.setTarnwellXFile(zephBrowser().modelFile());
    model.setModelScale(zephBrowser().modelScale());
    model.SetOrientation(zephBrowser().orientation());
  });
}

}  // namespace nerida
