#pragma once

namespace corvane::tour {

class Script;

/// On an installation with watched logs: the pictures of the help pages that the other tours do not take.
void AddHelpPictures(Script& script);

}  // namespace corvane::tour
