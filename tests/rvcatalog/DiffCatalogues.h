#ifndef DIFFCATALOGUES_H
#define DIFFCATALOGUES_H

/// Two catalogues that differ in every way.
constexpr char OLD_CATALOGUE[] = "<products>\n"
                                 "<product type='DUN9' article_id='1' name='Fotobuch' cover_type='hardcover'/>\n"
                                 "<product type='DUN5' article_id='2' name='Groß'/>\n"
                                 "<product type='VIR1' article_id='3'/>\n"
                                 "<product type='VIR2' article_id='4'/>\n"
                                 "</products>\n";
constexpr char NEW_CATALOGUE[] = "<products>\n"
                                 "<product type='VIR1' article_id='3'/>\n"
                                 "<product type='DUN9' article_id='1' name='Fotobuch' cover_type='softcover'>"
                                 "<forms><form key='alcolor' value='red'/></forms></product>\n"
                                 "<product type='VIR3' article_id='4' name='Neu'/>\n"
                                 "<product type='TOS1' article_id='5'/>\n"
                                 "</products>\n";

#endif
