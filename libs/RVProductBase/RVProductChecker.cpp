#include "RVProductChecker.h"

RVProductChecker::~RVProductChecker() = default;
