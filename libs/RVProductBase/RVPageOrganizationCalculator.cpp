#include "RVPageOrganizationCalculator.h"

RVPageOrganizationCalculator::~RVPageOrganizationCalculator() = default;
