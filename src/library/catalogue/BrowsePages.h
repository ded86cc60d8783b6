#pragma once

struct CatalogueSite;

// Lists of authors, subjects, languages and years with the numbers of their books.
namespace BrowsePages {

void write(const CatalogueSite& site);

} // namespace BrowsePages
