// The few things of the user's locale that the program depends on.
#pragma once

namespace vantrel {

// To be called once the toolkit has started, before any path is asked for. Lets paths and
// environment texts be read in the user's encoding, UTF-8 where the locale names none, and keeps
// numbers in files independent of the locale.
void SettleLocale();

}  // namespace vantrel
