#pragma once

// Prints the templates of the library with their styles and properties. Throws CommandError.
void runTemplates(bool json);
