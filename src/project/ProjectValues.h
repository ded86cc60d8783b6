#pragma once

#include "project/Project.h"
#include "template/FlashTemplate.h"

// Values of a template in a project.
namespace ProjectValues {

// Whether a project has to hold what the template's style sets: it is not one of the library.
bool holdStyle(const FlashTemplate& tmpl);

// Those that differ from what the template and its style have by themselves, but for the page size,
// which is the document's; with holdStyle() also those that differ from the template alone. Files
// are named only: they have no size and no digest.
std::vector<Project::Value> changed(const FlashTemplate& tmpl);

// Sets them; ignores keys that the template lacks.
void apply(const std::vector<Project::Value>& values, FlashTemplate& tmpl);

} // namespace ProjectValues
