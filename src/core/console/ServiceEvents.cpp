#include "core/console/ServiceEvents.h"

#include <utility>

namespace corvane {

void ServiceEvents::Add(ServiceEvent event) {
  if (events_.size() == events_.capacity()) events_.reserve(events_.empty() ? FirstRoom : 2 * events_.size());
  events_.push_back(std::move(event));
}

}  // namespace corvane
