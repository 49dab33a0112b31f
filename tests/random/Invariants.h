#pragma once

class OpenedWindow;

/** What holds whenever the user's last action has been carried out. */
namespace Invariants {

/** Expects all of it, as far as what is on the screen and in the models can tell. */
void check(const OpenedWindow& opened);

} // namespace Invariants
