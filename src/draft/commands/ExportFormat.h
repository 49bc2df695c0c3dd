#pragma once

namespace quillford {

/// The export that waits behind a verification.
enum class ExportFormat { None, Word, Html };

} // namespace quillford
