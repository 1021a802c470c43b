#pragma once

namespace pelmira {

/// What became of a file that the user was to open in another application.
enum class ShareResult { Sent, Cancelled, NothingToChooseFrom };

} // namespace pelmira
