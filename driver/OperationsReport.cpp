#include "driver/Driver.h"
#include "shell/report/frmPadre.h"

namespace caudalera {

namespace {

const char* alignmentName(Alignment alignment) {
    switch (alignment) {
    case Alignment::left:
        return "left";
    case Alignment::center:
        return "center";
    case Alignment::right:
        return "right";
    case Alignment::justify:
        return "justify";
    }
    return "";
}

Json documentOf(const frmDocumento& document) {
    Json paragraphs = Json::array();
    for (const Paragraph& paragraph : document.rtfText.paragraphs()) {
        paragraphs.push_back({{"align", alignmentName(paragraph.format.alignment)},
                              {"indent", paragraph.format.indent},
                              {"rightIndent", paragraph.format.rightIndent}});
    }
    return {{"caption", document.caption},
            {"text", document.rtfText.text()},
            {"paragraphs", std::move(paragraphs)}};
}

} // namespace

void Driver::report(const Request& /*request*/, Json& reply) {
    const frmPadre* loaded = ventanaDeReportes(*program_);
    reply["open"] = loaded != nullptr;
    reply["documents"] = Json::array();
    reply["active"] = nullptr;
    if (!loaded)
        return;
    for (const auto& document : loaded->documents()) {
        if (document.get() == loaded->active())
            reply["active"] = reply["documents"].size();
        reply["documents"].push_back(documentOf(*document));
    }
}

void Driver::activate(const Request& request, Json& /*reply*/) {
    const std::size_t index = request.count("document");
    frmPadre& loaded = padre();
    if (index >= loaded.documents().size())
        throw RequestError("there is no document " + std::to_string(index));
    program_->act([&] { loaded.activate(*loaded.documents()[index]); });
}

void Driver::caret(const Request& request, Json& /*reply*/) {
    const std::size_t position = request.count("position");
    const std::size_t length = request.count("length", 0);
    frmDocumento& document = activeDocument();
    program_->act([&] { document.rtfText.select(position, length); });
}

void Driver::rtf(const Request& /*request*/, Json& reply) {
    reply["rtf"] = writeRtf(activeDocument().rtfText);
}

void Driver::move(const Request& request, Json& /*reply*/) {
    if (request.text("window") != "frmPadre")
        throw RequestError("only frmPadre can be moved");
    frmPadre& loaded = padre();
    frmPadre::Place place = loaded.place;
    place.left = request.number("left", place.left);
    place.top = request.number("top", place.top);
    place.width = request.number("width", place.width);
    place.height = request.number("height", place.height);
    place.minimized = request.flag("minimized", place.minimized);
    program_->act([&] { loaded.place = place; });
}

} // namespace caudalera
