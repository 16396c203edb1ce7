#include "RVBleedMargin.h"

RVBleedMargin::~RVBleedMargin() = default;
