#ifndef BROKENCATALOGUE_H
#define BROKENCATALOGUE_H

/// A catalogue with findings, two of which can be mended.
constexpr char BROKEN_CATALOGUE[] = "<products>\n"
                                    "<!-- 8,5 is glued -->\n"
                                    "<product type='A'   article_id=\"1\" page_binding='glued'>\n"
                                    "\t<composition><spine base_width=\"8,5\" block_width='0'/></composition>\n"
                                    "</product>\n"
                                    "<product type='B' article_id='x'/>\n"
                                    "</products>\n";

/// The same catalogue after mending.
constexpr char MENDED_CATALOGUE[] = "<products>\n"
                                    "<!-- 8,5 is glued -->\n"
                                    "<product type='A'   article_id=\"1\" page_binding='glue'>\n"
                                    "\t<composition><spine base_width=\"8.5\" block_width='0'/></composition>\n"
                                    "</product>\n"
                                    "<product type='B' article_id='x'/>\n"
                                    "</products>\n";

#endif
