#pragma once

#include "project/Project.h"

class ImportWindow;
class OutputWindow;

// What is chosen in the sheets, as projects have it.
namespace SheetChoices {

Project::Import importOf(const ImportWindow& sheet);
void set(ImportWindow& sheet, const Project::Import& import);

Project::Publish publishOf(const OutputWindow& sheet);
void set(OutputWindow& sheet, const Project::Publish& publish);

} // namespace SheetChoices
