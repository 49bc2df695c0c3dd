#pragma once

#include "platform/Clock.h"
#include "platform/DocumentOpener.h"
#include "platform/Folders.h"
#include "platform/PagePrinter.h"
#include "platform/PictureLoader.h"
#include "platform/PictureReader.h"
#include "platform/SpellEngine.h"
#include "platform/TextMeasure.h"
#include "platform/WordProcessor.h"

#include <QFont>

namespace quillford {

/// What the program uses of the desktop it runs on, gathered for handing down. It owns nothing.
struct Ports {
    Folders& folders;
    Clock& clock;
    PictureReader& pictureSizes;
    PictureLoader& pictures;
    TextMeasure& measure;
    QFont measuredFont; ///< the font that `measure` measures, in its regular weight
    SpellEngine& spelling;
    WordProcessor& word;
    PagePrinter& printer;
    DocumentOpener& opener;
};

} // namespace quillford
