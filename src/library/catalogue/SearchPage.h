#pragma once

struct CatalogueSite;

// The page of the search; its script does the rest.
namespace SearchPage {

void write(const CatalogueSite& site);

} // namespace SearchPage
