#include "query/DetailView.h"

namespace vantrel {

DetailView::DetailView(frmMain& window, Commands& commands, const Version& version)
    : window_(window), version_(version) {
  commands.add(command::clearServer, [this] {
    window_.txtIP.text.set("");
    window_.txtPort.text.set("");
    ResetDetail();
    window_.cmdMenu[command::launchGame].enabled.set(false);
  });
  commands.onConnectionReset([this] { ResetDetail(); });
}

void DetailView::ClearDetail() {
  clearListsAndName();
  window_.title.set("Zorbel's Vantrel - Version " + version_.text());
}

void DetailView::ResetDetail() {
  window_.txtPing.foreColor.set(colors::green);
  window_.txtPing.text.set("");
  clearListsAndName();
  for (const std::size_t number : {4u, 6u, 7u, 8u, 9u, 10u}) {
    window_.lblText[number].caption.set("[...]");
  }
  window_.title.set("Zorbel's Vantrel CE - Version " + version_.text());
}

void DetailView::showTitle(const std::string& server) const {
  window_.title.set(" [ " + server + "] Zorbel's Vantrel - Version " + version_.text());
}

void DetailView::clearListsAndName() {
  for (ListView* const list :
       {&window_.ListView1, &window_.ListView2, &window_.ListView3, &window_.ListView4, &window_.ListView5}) {
    list->clear();
  }
  window_.lblData.caption.set("Vantrel CE");
}

}  // namespace vantrel
