#pragma once

namespace corvane {

struct LabComputer;
class RegistryImage;

/// Puts into a registry what a computer of the lab tells about itself: the name of its system and, for each log that it
/// has, the log's file, largest size in bytes and retention in seconds.
void DescribeComputer(const LabComputer& computer, RegistryImage& registry);

}  // namespace corvane
