#pragma once

#include "platform/Clock.h"
#include "platform/Folders.h"
#include "platform/PictureReader.h"
#include "platform/SpellEngine.h"
#include "platform/TextMeasure.h"

namespace quillford {

/// What the program uses of the desktop it runs on, gathered for handing down. It owns nothing.
struct Ports {
    Folders& folders;
    Clock& clock;
    PictureReader& pictures;
    TextMeasure& measure;
    SpellEngine& spelling;
};

} // namespace quillford
