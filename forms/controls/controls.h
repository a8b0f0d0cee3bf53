#pragma once

// All the controls that a window can be made of.

#include "forms/controls/buttons.h"
#include "forms/controls/combo_box.h"
#include "forms/controls/label.h"
#include "forms/controls/list_view.h"
#include "forms/controls/pictures.h"
#include "forms/controls/shapes.h"
#include "forms/controls/text_box.h"
