#pragma once

class FormField;

/// Each function answers one question about one field: above 0.0 when the field takes the item
/// field, 0.0 when it does not.

/// The password: a visible password field, or a text field that is called one.
float passwordScore(const FormField &field);

/// The password: a visible password field that is called one.
float namedPasswordScore(const FormField &field);

/// The password: any visible password field.
float visiblePasswordScore(const FormField &field);

/// The login or user name: a visible text field that is called one.
float loginNameScore(const FormField &field);

/// Whether the field is one that a user could type a login into. Takes no item field: it is the
/// gate that stands before the classifiers.
float visibleFieldScore(const FormField &field);
