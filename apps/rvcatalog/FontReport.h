#ifndef FONTREPORT_H
#define FONTREPORT_H

struct Console;

/// Says to the messages that the declared font of spines is missing, whose sizes are told instead, and which package
/// has it. Silent where the font is there.
void reportMissingFont(const Console &console);

#endif
