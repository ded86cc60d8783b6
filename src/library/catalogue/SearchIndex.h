#pragma once

struct CatalogueSite;

// Data for the search in the browser: scripts that hand over what they have, since browsers load no
// other data from disk. They are split so that a query needs few of them; see docs/catalogue.md.
namespace SearchIndex {

void write(const CatalogueSite& site);

} // namespace SearchIndex
