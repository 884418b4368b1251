# The folder of the installed module, below the installation's root.
set(TVX_MODULE_DIRECTORY tvxCrowdRender)
