"""Makes the reference: static pages of all that `orrery schema` and the headers tell."""
