#include "app/View.h"
