"""Reads parameter trees from YAML for the checks of the shipped data, with the same value types as the program."""
import re

import yaml


class Wide(str):
    """A wide text, tagged !wide."""


class Size(tuple):
    """Two integers, tagged !size."""


class RealSize(tuple):
    """Two reals, tagged !rsize."""


class RealPoint(tuple):
    """Two reals, tagged !rpoint."""


class ParamLoader(yaml.SafeLoader):
    """A loader that knows the tags of parameter trees and refuses what they cannot hold."""


def _pair(kind, number):
    def construct(loader, node):
        values = loader.construct_sequence(node)
        if len(values) != 2 or any(type(v) is not number for v in values):
            raise yaml.constructor.ConstructorError(None, None, f"{node.tag} needs two values of type {number.__name__}",
                                                    node.start_mark)
        return kind(values)
    return construct


def _mapping(loader, node):
    result = {}
    for key_node, value_node in node.value:
        key = loader.construct_scalar(key_node)
        if key in result:
            raise yaml.constructor.ConstructorError(None, None, f"the name {key} is given twice", key_node.start_mark)
        result[key] = loader.construct_object(value_node, deep=True)
    return result


ParamLoader.add_constructor("!wide", lambda loader, node: Wide(loader.construct_scalar(node)))
ParamLoader.add_constructor("!size", _pair(Size, int))
ParamLoader.add_constructor("!rsize", _pair(RealSize, float))
ParamLoader.add_constructor("!rpoint", _pair(RealPoint, float))
ParamLoader.add_constructor(yaml.resolver.BaseResolver.DEFAULT_MAPPING_TAG, _mapping)
# Only decimal and 0x integers and reals with a decimal point are numbers; a plain word is not a boolean.
ParamLoader.yaml_implicit_resolvers = {}
ParamLoader.add_implicit_resolver("tag:yaml.org,2002:int", re.compile(r"^[-+]?(0x[0-9A-Fa-f]+|[0-9]+)$"),
                                  list("-+0123456789"))
ParamLoader.add_implicit_resolver("tag:yaml.org,2002:float", re.compile(r"^[-+]?[0-9]+\.[0-9]+$"),
                                  list("-+0123456789"))


def load(path):
    """The whole file as nested dicts; a dict is a section."""
    with open(path, encoding="utf-8") as stream:
        return yaml.load(stream, ParamLoader)
