# The extension. What it has for users is in __init__.pyi.
from typing import Any

def __getattr__(name: str) -> Any: ...
