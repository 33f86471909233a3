#pragma once

namespace corvane::tour {

class Script;

/// Who is told, and how: a template, a notification that uses it, a table made for it, the test of it that really sends
/// to a receiver of the tour's own, and a syslog device that is accepted.
void AddNotifications(Script& script);

}  // namespace corvane::tour
