#pragma once

namespace corvane {

struct LabComputer;
struct LabModel;
class RegistryImage;

/// Puts into a registry what a computer of the lab tells about itself: the name of its system and, for each log that it
/// has, the log's file, largest size in bytes and retention in seconds.
void DescribeComputer(const LabComputer& computer, RegistryImage& registry);
/// Puts the names of the lab's modems into the registry of the local computer.
void DescribeModems(const LabModel& lab, RegistryImage& registry);

}  // namespace corvane
