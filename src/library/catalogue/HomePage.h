#pragma once

struct CatalogueSite;

// The page that the library opens with.
namespace HomePage {

void write(const CatalogueSite& site);

} // namespace HomePage
