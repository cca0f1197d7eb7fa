#pragma once

/// Everything that views are made of.
#include "OrvelPlatform/Views/Accessibility.h"
#include "OrvelPlatform/Views/Effects.h"
#include "OrvelPlatform/Views/Frame.h"
#include "OrvelPlatform/Views/Icon.h"
#include "OrvelPlatform/Views/Layering.h"
#include "OrvelPlatform/Views/Padding.h"
#include "OrvelPlatform/Views/Shape.h"
#include "OrvelPlatform/Views/Stacks.h"
#include "OrvelPlatform/Views/Text.h"
#include "OrvelPlatform/Views/With.h"
